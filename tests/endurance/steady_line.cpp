#include "endurance/endurance.h"
#include "endurance/steady.h"
#include "support/project_fixture.h"

namespace kelvor::test {

namespace {

/// Each is two steps that can be undone; of more than 2,000 the oldest are forgotten.
constexpr int kUntilUndoIsFull = 1'000;

}  // namespace

std::string HoldSteady(const Trial& trial) {
    static const std::vector<std::string> kScreens = {"DeF", "DeR",  "LayDet", "TrAx",
                                                      "ExF", "OvAA", "LcA1",   "ReDfF"};
    using Kind = UserEvent::Kind;
    TestProgram program;
    const TemporaryFolder folder;
    Program& run = program.program;
    run.SaveAs(folder / "plan.kvr");
    const std::string screens = Repeat("screens", trial.count, [&](int i) {
        const std::string& screen = kScreens[static_cast<std::size_t>(i) % kScreens.size()];
        run.Raise({Kind::OpenForm, screen});
        run.Raise({Kind::CloseForm, screen});
        Forget(program.host.record);
    });
    const std::string saves = Repeat("saves", trial.count / 10, [&](int i) {
        run.SetValue("SN", 1, 1, std::to_string(i + 1));
        Hold(run.Save(), "the project is saved");
    });
    for (const auto& [name, value] :
         {std::pair("FLEXE18", "5000000"), std::pair("FLEXREL", "95"), std::pair("FLEXDEV", "0.45"),
          std::pair("RM", "5000"), std::pair("FLEXPO", "4.2"), std::pair("FLEXPT", "2.5")}) {
        run.SetValue(name, 1, 1, value);
    }
    const auto solve = [&](int i) {
        run.SetValue("FLEXREL", 1, 1, i % 2 == 0 ? "95" : "90");
        Hold(run.Solve("DeF", 1) == 0, "the design is solved");
        Forget(program.host.record);
    };
    for (int i = 0; i < kUntilUndoIsFull; ++i) solve(i);
    const std::string solves = Repeat("solves", trial.count / 10, solve);
    return screens + "; " + saves + "; " + solves;
}

}  // namespace kelvor::test
