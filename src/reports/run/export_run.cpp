// Reports as files beside the project.

#include "reports/run/report_desk.h"
#include "reports/run/waiting.h"

namespace kelvor {

namespace {

constexpr const char* kTitle = "Reports";
constexpr const char* kFolder = "ExportDt";

constexpr const char* kPrefixQuestion =
    "Using a prefix allows you to group the exported reports together by name.\n"
    "It allows a custom value (that you type in) to be appended to the name(s) of the files created.\n\n"
    "Enter a prefix below to use for naming the exported reports "
    "(the name format will be PREFIX_PROJECTNAME_REPORTNAME.RTF, "
    "if you enter none, the name format will be PROJECTNAME_REPORTNAME.RTF)";

/// The name of a project: that of its file up to the first point.
std::string ProjectName(const std::string& projectFile) {
    const std::string name = Path(projectFile).filename().string();
    return name.substr(0, name.find('.'));
}

std::string FileName(const std::string& prefix, const std::string& projectFile, const ReportName& report) {
    return prefix + ProjectName(projectFile) + report.suffix;
}

}  // namespace

void ReportDesk::Export(ScreenContext& context, const Form& hub) {
    if (!MayExport() || !DemandReports(context)) return;
    const WaitCursor wait(dialogs());
    files_.Provide(ExportFolder().string());
    if (files_.Demand(ReportFiles::kDatabases) && files_.DemandCatalogue()) {
        Guard([&] { RunExport(context, hub); });
    }
}

/// Files need a project that is saved as it stands.
bool ReportDesk::MayExport() {
    const bool isNamed = !site_.sProjectFile.empty();
    if (isNamed && !site_.bProjectChanged) return true;
    dialogs().ShowMessage(
        {.text = "Please save the project first!", .title = isNamed ? "Save" : "Export Files"});
    return false;
}

Path ReportDesk::ExportFolder() const { return Path(site_.sProjectFile).parent_path() / kFolder; }

/// The prefix with what parts it from the name; empty for none. A prefix is a part of a name, and leads to no
/// other folder.
std::string ReportDesk::AskPrefix() {
    std::string prefix = dialogs().AskText({.text = kPrefixQuestion}).value_or("");
    for (char& letter : prefix) {
        if (letter == '/' || letter == '\0') letter = '_';
    }
    return prefix.empty() ? prefix : prefix + "_";
}

void ReportDesk::RunExport(ScreenContext& context, const Form& hub) {
    ReportList list(context, stagingFile_.Provide(site_.host.files, files_.Catalogue()));
    const std::string prefix = AskPrefix();
    list.TakeTicked(hub, [&](const ReportName& report) {
        return MayReplace(ExportFolder() / FileName(prefix, site_.sProjectFile, report));
    });
    list.StageGeneral();
    if (list.IsEmpty()) {
        (void)list.Finish();
        dialogs().ShowMessage({.text = "No reports selected", .title = kTitle});
        return;
    }
    try {
        TellCreated(WriteFiles(context, list, prefix));
    } catch (const FileError& failure) {
        dialogs().ShowMessage({.text = "Error exporting files!"});
        dialogs().ShowMessage({.text = failure.what(), .title = kTitle});
        return;
    }
    if (list.unbalanced().empty()) return;
    dialogs().ShowMessage(
        {.text = "The following report(s) could not be exported, because not all input forms "
                 "were balanced!\n" +
                 list.unbalanced() + "\nPlease go back and balance the form(s) first.",
         .title = kTitle});
}

/// False if the file is there and shall stay.
bool ReportDesk::MayReplace(const Path& file) {
    if (site_.host.files.Kind(file) == FileKind::Missing) return true;
    return dialogs().ShowMessage({.text = "The export file " + file.filename().string() +
                                          " already exists.\nDo you want to replace existing file?",
                                  .title = "File exists",
                                  .style = MessageStyle::YesNo}) == Answer::Yes;
}

/// How many files were written; a report that cannot be filled is told and left out. Throws FileError.
int ReportDesk::WriteFiles(ScreenContext& context, ReportList& list, const std::string& prefix) {
    const StagedTables tables = list.Finish();
    const std::size_t count = list.reports().size();
    int written = 0;
    PleaseWait notice(dialogs(), "Exporting reports....", count);
    for (std::size_t i = 1; i <= count; ++i) {
        notice.Step(i,
                    "Processing report No." + std::to_string(i) + " out of " + std::to_string(count) + ".");
        const ListedReport& listed = list.reports()[i - 1];
        const Report report = FillReport(context, listed, tables);
        if (!report.IsFilled()) continue;
        engine_->Write(report, ReportFormat::Rtf,
                       ExportFolder() / FileName(prefix, site_.sProjectFile, *listed.report));
        ++written;
    }
    return written;
}

void ReportDesk::TellCreated(int count) {
    if (count == 0) return;
    const bool isOne = count == 1;
    dialogs().ShowMessage(
        {.text = std::to_string(count) +
                 (isOne ? " file was created!! \n It is" : " files were created!! \n They are") +
                 " located in the " + ExportFolder().string() + " directory.",
         .title = "Export finished"});
}

}  // namespace kelvor
