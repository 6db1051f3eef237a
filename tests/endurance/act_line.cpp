#include <random>

#include "endurance/endurance.h"
#include "support/project_fixture.h"
#include "support/random_events.h"

namespace kelvor::test {

namespace {

constexpr int kActsToAComparison = 100;

}  // namespace

std::string ActAtRandom(const Trial& trial) {
    static const std::vector<std::string> kScreens = {"TabForm", "DeF",  "DeR",  "DeS",  "LayDet",
                                                      "TrAx",    "TrVe", "TrTr", "ExF",  "ExR",
                                                      "OvAA",    "OvBP", "LcA1", "ReDfF"};
    std::mt19937 random(trial.seed);
    TestProgram program;
    program.host.clock.gain = 1.0;  // a search that finds nothing ends after a few passes
    for (int act = 1; act <= trial.count; ++act) {
        const Form* current = program.program.state().formRegistry.CurrentForm;
        const UserEvent event = RandomEvent(random, current, kScreens);
        program.program.Raise(event);
        Forget(program.host.record);
        if (act % kActsToAComparison != 0 || !program.store().IsOpen()) continue;
        const std::vector<std::string> differences = program.store().CompareWithWorkCopy();
        Hold(differences.empty(), "act " + std::to_string(act) + ": the work copy has another " +
                                      (differences.empty() ? "" : differences[0]));
    }
    return std::to_string(trial.count) + " acts, compared every " + std::to_string(kActsToAComparison);
}

}  // namespace kelvor::test
