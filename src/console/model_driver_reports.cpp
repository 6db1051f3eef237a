// Reports by script.

#include <utility>

#include "console/model_driver.h"
#include "console/script/command_line.h"
#include "platform/database_error.h"
#include "platform/text.h"
#include "reports/run/report_desk.h"
#include "shell/hub/hub.h"

namespace kelvor {

namespace {

constexpr int kReportsTab = static_cast<int>(HubTab::Reports);

bool IsReportsTab(const Form* form) {
    return form != nullptr && form->type().isHub && form->page() == kReportsTab;
}

/// The kind of file that an ending means; throws ScriptError for any other.
ReportFormat FormatOf(const Path& file) {
    const std::string ending = file.extension().string();
    for (const auto& [known, format] : {std::pair{".pdf", ReportFormat::Pdf},
                                        {".rtf", ReportFormat::Rtf},
                                        {".html", ReportFormat::Html},
                                        {".txt", ReportFormat::Text}}) {
        if (EqualNoCase(ending, known)) return format;
    }
    throw ScriptError("a preview is written as .pdf, .rtf, .html or .txt");
}

}  // namespace

/// A value that is refused keeps its screen in front; then there is no press.
void ModelDriver::PressOnReportsTab(const std::string& button) {
    const FormRegistry& forms = program_.state().formRegistry;
    if (!IsReportsTab(forms.CurrentForm)) SwitchTab(kReportsTab);
    if (IsReportsTab(forms.CurrentForm)) Press(button);
}

void ModelDriver::MakeReports() { PressOnReportsTab("Command10"); }
void ModelDriver::ExportReports() { PressOnReportsTab("cmdbExport"); }
void ModelDriver::PrintReport() { ChooseMenu("MenuFilePrint", 0); }

std::vector<PreviewReport> ModelDriver::Previews() {
    std::vector<PreviewReport> reports;
    for (const Preview& preview : program_.state().reports.previews()) {
        reports.push_back({static_cast<int>(reports.size() + 1), preview.name, preview.caption});
    }
    return reports;
}

void ModelDriver::WritePreview(int number, const std::string& file) {
    const ReportFormat format = FormatOf(file);
    ReportDesk& reports = program_.state().reports;
    const auto count = static_cast<int>(reports.previews().size());
    if (number < 1 || number > count) throw ScriptError("there is no preview " + std::to_string(number));
    try {
        reports.WritePreview(static_cast<std::size_t>(number - 1), format, file);
    } catch (const FileError& failure) {
        throw ScriptError(file + " cannot be written: " + failure.what());
    }
}

StagedTable ModelDriver::Table(const std::string& name) {
    try {
        const StagedTables tables = program_.state().reports.Tables(program_.state().MakeScreenContext());
        if (const StagedTable* table = tables.Find(name)) return *table;
    } catch (const FileError& failure) {
        throw ScriptError(std::string("the staging tables cannot be read: ") + failure.what());
    } catch (const DatabaseError& failure) {
        throw ScriptError(std::string("the staging tables cannot be read: ") + failure.what());
    }
    throw ScriptError("there is no staging table " + name);
}

}  // namespace kelvor
