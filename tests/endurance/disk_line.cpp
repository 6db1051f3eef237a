#include <random>

#include "endurance/endurance.h"
#include "support/file_size_limit.h"
#include "support/project_fixture.h"
#include "support/small_home.h"

namespace kelvor::test {

std::string FillTheDisk(const Trial& trial) {
    std::mt19937 random(trial.seed);
    const SmallHome home;
    const TemporaryFolder folder;
    const std::string project = folder / "plan.kvr";
    TestHost host;
    Program program(host.host(), home.home());
    Hold(program.Start("") == StartResult::Running, "the program starts");
    Hold(program.SaveAs(project), "the project can be saved");
    const auto size = static_cast<int>(std::filesystem::file_size(project));
    int refused = 0;
    for (int i = 1; i <= trial.count; ++i) {
        const std::string former = ReadFile(project);
        const auto room =
            static_cast<rlim_t>(std::uniform_int_distribution<int>(0, size + size / 10)(random));
        bool saved = false;
        {
            const FileSizeLimit full(room);
            program.SetValue("SN", 1, 1, std::to_string(i));
            program.SetValue("Agency", 1, 1, std::string(static_cast<std::size_t>(i % 3000), 'x'));
            saved = program.Save();
        }
        const bool told = !host.record.TakeTexts().empty();
        Hold(saved != told, "a save that fails says so, and no other");
        Hold(saved || ReadFile(project) == former, "a save that fails leaves the former file");
        Hold(program.state().dbWork.IsOpen() && program.state().dbWork.GetVar("SN") == i, "the work goes on");
        refused += saved ? 0 : 1;
        Hold(program.Save() && host.record.TakeTexts().empty(), "with room again it is saved");
        Hold(NumberInFile(project, "SN") == i, "the file has the work");
        Hold(program.state().dbWork.CompareWithWorkCopy().empty(), "the work copy has the work");
    }
    Hold(refused > 0, "the disk was full now and then");
    return std::to_string(trial.count) + " saves, " + std::to_string(refused) + " of them on a full disk";
}

}  // namespace kelvor::test
