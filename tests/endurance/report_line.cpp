#include <array>

#include "endurance/endurance.h"
#include "endurance/steady.h"
#include "support/project_fixture.h"

namespace kelvor::test {

namespace {

constexpr int kReportsTab = 5;
constexpr std::size_t kReports = 14;

struct Category {
    const char* option;
    std::vector<const char*> boxes;
};

const std::array<Category, 4>& Categories() {
    static const std::array<Category, 4> categories = {
        Category{"rbND", {"rbNDopR", "rbNDopF"}},
        Category{"rbOV",
                 {"rbOVopBP", "rbOVopUP", "rbOVopWT", "rbOVopAFP", "rbOVopAA", "rbOVopAP", "rbOVopAAP"}},
        Category{"rbTr", {"rbTRopTrAx", "rbTRopTrVe", "rbTRopTrTr"}}, Category{"rbCost", {}}};
    return categories;
}

/// Makes the reports of a category; one of them is written as pages, the others as text.
std::size_t Report(Program& program, const Category& category, const Path& folder, int round) {
    using Kind = UserEvent::Kind;
    program.Raise({Kind::Choose, category.option});
    for (const char* box : category.boxes) program.Raise({Kind::Choose, box});
    program.Raise({Kind::Press, "Command10"});
    ReportDesk& desk = program.state().reports;
    const std::size_t made = desk.previews().size();
    for (std::size_t i = 0; i < made; ++i) {
        const bool paged = static_cast<std::size_t>(round) % made == i;
        desk.WritePreview(i, paged ? ReportFormat::Pdf : ReportFormat::Html, folder / "report");
    }
    program.Raise({Kind::Press, "Close"});
    return made;
}

}  // namespace

std::string ReportOverAndOver(const Trial& trial) {
    TestProgram program;
    const TemporaryFolder folder;
    Program& run = program.program;
    run.Raise({UserEvent::Kind::OpenFile, {}, Path(KELVOR_HOME_FOLDER) / "Samples" / "every_report.kvr"});
    run.Raise({.kind = UserEvent::Kind::SwitchTab, .number = kReportsTab});
    return Repeat("runs of all reports", trial.count, [&](int round) {
        std::size_t made = 0;
        for (const Category& category : Categories()) made += Report(run, category, folder.path(), round);
        Hold(made == kReports, "every report is made");
        Forget(program.host.record);
    });
}

}  // namespace kelvor::test
