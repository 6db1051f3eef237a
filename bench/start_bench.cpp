#include <fstream>

#include "benchmarks.h"
#include "child_program.h"
#include "platform/executable_folder.h"

namespace kelvor::bench {

namespace {

/// How often each of the two programs is started.
constexpr int kStarts = 41;

constexpr double kLongestRatio = 1.5;

std::string WriteScript(const Path& home) {
    std::string script = (home / "start.kvs").string();
    std::ofstream(script) << "get SN\n";
    return script;
}

}  // namespace

std::vector<Comparison> CompareStarts(const Path& home) {
    const Path programs = ExecutableFolder();
    const std::vector<std::string> ours = {(programs / "kelvor-cli").string(), "--home", home.string(),
                                           "--script", WriteScript(home)};
    const std::vector<std::string> reference = {(programs / "kelvor-bench-start").string(), home.string()};
    const BothStarted runs = StartInTurns(ours, reference, kStarts);
    return {{"kelvor-cli, start to first answer", Quantity::Time, Median(runs.ours, &Started::seconds),
             Median(runs.reference, &Started::seconds), kLongestRatio},
            {"kelvor-cli, peak memory", Quantity::Memory, Median(runs.ours, &Started::peakBytes),
             Median(runs.reference, &Started::peakBytes), std::nullopt}};
}

}  // namespace kelvor::bench
