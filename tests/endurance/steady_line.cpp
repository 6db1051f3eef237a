#include <malloc.h>

#include <filesystem>
#include <functional>
#include <iterator>

#include "endurance/endurance.h"
#include "support/project_fixture.h"

namespace kelvor::test {

namespace {

/// Growth of what is allocated that caches explain, and that a leak in every round exceeds.
constexpr long kFlatKilobytes = 512;

/// What is allocated and not freed. An address sanitizer keeps freed memory aside to catch late uses of it,
/// so that its figure is no measure: 0 there; what is never freed is told by its leak check when the run
/// ends.
long AllocatedKilobytes() {
#if defined(__SANITIZE_ADDRESS__)
    return 0;
#else
    const struct mallinfo2 heap = ::mallinfo2();
    return static_cast<long>((heap.uordblks + heap.hblkhd) / 1024);
#endif
}

std::ptrdiff_t OpenFiles() {
    return std::distance(std::filesystem::directory_iterator("/proc/self/fd"),
                         std::filesystem::directory_iterator());
}

/// Does something many times; memory and open files may not grow once it was done a tenth of the times.
std::string Repeat(const std::string& what, int count, const std::function<void(int)>& act) {
    const int warm = count / 10 + 1;
    for (int i = 0; i < warm; ++i) act(i);
    const long memory = AllocatedKilobytes();
    const std::ptrdiff_t files = OpenFiles();
    for (int i = warm; i < count; ++i) act(i);
    const long growth = AllocatedKilobytes() - memory;
    Hold(OpenFiles() == files, what + ": no file stays open");
    Hold(growth < kFlatKilobytes,
         what + ": the memory is flat, but grew by " + std::to_string(growth) + " KiB");
    return std::to_string(count) + " " + what + ": +" + std::to_string(growth) + " KiB, " +
           std::to_string(files) + " files open throughout";
}

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
    const std::string solves = Repeat("solves", trial.count / 10, [&](int i) {
        run.SetValue("FLEXREL", 1, 1, i % 2 == 0 ? "95" : "90");
        Hold(run.Solve("DeF", 1) == 0, "the design is solved");
        Forget(program.host.record);
    });
    return screens + "; " + saves + "; " + solves;
}

}  // namespace kelvor::test
