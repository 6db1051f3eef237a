#include "reports/run/report_desk.h"

#include <string_view>

#include "forms/form_events.h"
#include "forms/side_screen.h"
#include "platform/database_error.h"
#include "platform/translation.h"
#include "reports/run/preview_form.h"
#include "reports/run/report_sections.h"
#include "reports/run/report_texts.h"
#include "reports/run/waiting.h"

namespace kelvor {

namespace {

constexpr const char* kTitle = "Reports";
constexpr std::string_view kWarning = "WARNING!";

}  // namespace

ReportDesk::ReportDesk(const ReportSite& site)
    : site_(site), files_(site_.host, site_.home), stagingFile_(site_.stagingFile) {}

/// True if there can be reports at all; else why not is shown.
bool ReportDesk::DemandReports(const ScreenContext& context) {
    if (site_.bReportsUnavailable || engine_ == nullptr) {
        dialogs().ShowMessage({.text =
                                   "A necessary system component needed to run reports could not be found."
                                   "\n\t        Press 'OK' to continue.",
                               .title = "Problem"});
        return false;
    }
    if (context.calc.store.IsOpen()) return true;
    dialogs().ShowMessage({.text = Translated("There is no project to report."), .title = kTitle});
    return false;
}

/// Runs a part of the work that opens databases and files; what fails there is shown, and ends it.
void ReportDesk::Guard(const std::function<void()>& run) {
    const auto tell = [&](const std::string& reason) {
        dialogs().ShowMessage(
            {.text = Filled(Translated("The reports cannot be prepared: %1"), {reason}), .title = kTitle});
    };
    try {
        run();
    } catch (const DatabaseError& failure) {
        tell(failure.what());
    } catch (const FileError& failure) {
        tell(failure.what());
    }
}

// --- File > Print ---------------------------------------------------------------------------------------

void ReportDesk::Print(ScreenContext& context) {
    const Form* current = context.forms.CurrentForm;
    const std::string screen = current == nullptr ? "" : current->tag;
    const bool mayPrint = DemandReports(context) && MayPrint(current);
    RemoveFormerPreviews(context);
    if (!mayPrint) return;
    const WaitCursor wait(dialogs());
    files_.Provide(ReportFiles::kLayouts);
    files_.Provide(ReportFiles::kDatabases);
    if (!files_.DemandCatalogue()) return;
    Guard([&] { RunPrint(context, screen); });
}

/// A screen that says that it is not balanced is not printed.
bool ReportDesk::MayPrint(const Form* screen) {
    if (screen == nullptr || !screen->TextOf("SolveFor").starts_with(kWarning)) return true;
    dialogs().ShowMessage({.text = "The values for this input form were not balanced.\n"
                                   "Please press 'Solve for' to balance.",
                           .title = "Not Solved"});
    return false;
}

void ReportDesk::RunPrint(ScreenContext& context, const std::string& screen) {
    ReportList list(context, stagingFile_.Provide(site_.host.files, files_.Catalogue()));
    list.StageGeneral();
    if (const ReportItem* item = FindReportItem(screen)) {
        list.Take(*item, false);
    } else {
        dialogs().ShowMessage({.text = "The specified report does not exist.", .title = "Report"});
    }
    list.StageGeneral();
    MakePreviews(context, list);
    if (list.unbalanced().empty()) {
        ShowFirstPreview(context);
        return;
    }
    dialogs().ShowMessage(
        {.text = "The following report could not be printed, because the input form was not balanced:\n" +
                 list.unbalanced() + "\nPlease go back and balance the form.",
         .title = kTitle});
}

// --- The tab Reports --------------------------------------------------------------------------------------

void ReportDesk::ReportTicked(ScreenContext& context, const Form& hub) {
    const bool mayReport = DemandReports(context);
    RemoveFormerPreviews(context);
    if (!mayReport) return;
    const WaitCursor wait(dialogs());
    if (!files_.Demand(ReportFiles::kLayouts) || !files_.Demand(ReportFiles::kDatabases)) return;
    if (files_.DemandCatalogue()) Guard([&] { RunTicked(context, hub); });
}

void ReportDesk::RunTicked(ScreenContext& context, const Form& hub) {
    ReportList list(context, stagingFile_.Provide(site_.host.files, files_.Catalogue()));
    list.TakeTicked(hub);
    list.StageGeneral();
    if (list.IsEmpty()) {
        (void)list.Finish();
        dialogs().ShowMessage({.text = "No reports selected", .title = kTitle});
        return;
    }
    MakePreviews(context, list);
    ShowFirstPreview(context);
    if (list.unbalanced().empty()) return;
    dialogs().ShowMessage(
        {.text = "The following report(s) could not be printed, because not all input forms "
                 "were balanced!\n" +
                 list.unbalanced() + "\nPlease go back and balance the form(s) first.",
         .title = kTitle});
}

// --- Previews -------------------------------------------------------------------------------------------

void ReportDesk::RemoveFormerPreviews(ScreenContext& context) {
    if (Form* form = context.forms.Find(kPreviewForm)) FormEvents(context).Unload(*form);
    DropPreviews();
}

void ReportDesk::MakePreviews(ScreenContext& context, ReportList& list) {
    const StagedTables tables = list.Finish();
    const std::size_t count = list.reports().size();
    if (count == 0) return;
    PleaseWait notice(dialogs(), "Opening Reports.......", count);
    for (std::size_t i = 1; i <= count; ++i) {
        notice.Step(i, "Opening Reports.......");
        const ListedReport& listed = list.reports()[i - 1];
        const std::string title = listed.report->title;
        previews_.push_back(
            {listed.report->name, title,
             title + "  Report " + std::to_string(i) + " out of " + std::to_string(count) + ".",
             FillReport(context, listed, tables)});
    }
}

/// Fills a report; one that cannot be filled is told by the engine's own message.
Report ReportDesk::FillReport(const ScreenContext& context, const ListedReport& listed,
                              const StagedTables& tables) {
    Report report = engine_->Fill({.layout = files_.Layout(listed.report->name),
                                   .name = listed.report->name,
                                   .title = listed.report->title,
                                   .tables = tables,
                                   .texts = ReportTexts(context, listed.screen, site_.sProjectFile),
                                   .drawings = DrawingsOfReport(context, listed.screen)});
    if (!report.IsFilled()) dialogs().ShowMessage({.text = report.error, .title = kTitle});
    return report;
}

void ReportDesk::ShowFirstPreview(ScreenContext& context) {
    if (previews_.empty()) return;
    shown_ = 0;
    FormEvents(context).Open({.form = kPreviewForm});
}

void ReportDesk::StepPreview(ScreenContext& context, int step) {
    const std::size_t last = previews_.empty() ? 0 : previews_.size() - 1;
    if (step > 0 ? shown_ >= last : shown_ == 0) {
        dialogs().ShowMessage({.text = "No more reports to display.", .title = kTitle});
        return;
    }
    shown_ = step > 0 ? shown_ + 1 : shown_ - 1;
    if (Form* form = context.forms.Find(kPreviewForm)) ShowPreview(*form);
}

void ReportDesk::ShowPreview(Form& form) const {
    if (shown_ >= previews_.size()) return;
    const Preview& preview = previews_[shown_];
    form.caption = preview.caption;
    Control& pages = form.Get(kPreviewPages);
    pages.text = preview.report.IsFilled() ? preview.title : preview.report.error;
    pages.document = preview.report.document;
}

void ReportDesk::PrintPreview() {
    if (shown_ >= previews_.size() || !previews_[shown_].report.IsFilled()) return;
    const Path file = site_.stagingFile.string() + ".pdf";
    std::optional<std::string> failure;
    try {
        engine_->Write(previews_[shown_].report, ReportFormat::Pdf, file);
        failure = dialogs().Print({.file = file, .title = previews_[shown_].title});
        site_.host.files.Remove(file);
    } catch (const FileError& error) {
        failure = error.what();
    }
    if (!failure) return;
    dialogs().ShowMessage(
        {.text = Filled(Translated("The report could not be printed: %1."), {*failure}), .title = kTitle});
}

void ReportDesk::ClosePreviews(ScreenContext& context) {
    RemoveFormerPreviews(context);
    if (Form* hub = context.forms.Find("TabForm")) FormEvents(context).Activate(*hub);
}

void ReportDesk::WritePreview(std::size_t index, ReportFormat format, const Path& file) {
    const Report& report = previews_[index].report;
    if (!report.IsFilled()) throw FileError(report.error);
    engine_->Write(report, format, file);
}

StagedTables ReportDesk::Tables(const ScreenContext& context) {
    ReportList list(context, stagingFile_.Provide(site_.host.files, files_.Catalogue()));
    return list.Finish();
}

}  // namespace kelvor
