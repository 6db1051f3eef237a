#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "forms/form.h"
#include "forms/screen_context.h"
#include "platform/host.h"
#include "reports/engine.h"
#include "reports/run/report_files.h"
#include "reports/run/report_items.h"
#include "reports/run/report_list.h"
#include "reports/staging/staging_file.h"

namespace kelvor {

/// Where the reports of a process come from and go to, and what of the process decides about them.
struct ReportSite {
    Host& host;
    Path home;         // the program folder
    Path stagingFile;  // the copy of the staging tables that its runs fill
    const std::string& sProjectFile;
    const bool& bProjectChanged;
    const bool& bReportsUnavailable;
};

/// A report as its preview shows it.
struct Preview {
    std::string name;
    std::string title;
    std::string caption;
    Report report;
};

/// The reports of a process: it stages them, has them filled, previewed, printed and exported, and shows
/// every message. At most one set of previews is there; it lives until the next run, until all are closed,
/// and until another project comes.
class ReportDesk {
  public:
    explicit ReportDesk(const ReportSite& site);

    /// Without an engine there are no reports.
    void SetEngine(std::unique_ptr<ReportEngine> engine) { engine_ = std::move(engine); }

    /// Null without one.
    [[nodiscard]] ReportEngine* engine() const { return engine_.get(); }

    /// File > Print: the report of the current screen, by its catalogue key.
    void Print(ScreenContext& context);

    /// The button of the tab Reports: everything that is ticked on the hub.
    void ReportTicked(ScreenContext& context, const Form& hub);

    /// The button beside it: everything that is ticked, each as a file beside the project.
    void Export(ScreenContext& context, const Form& hub);

    // --- Previews ------------------------------------------------------------------------------

    [[nodiscard]] const std::vector<Preview>& previews() const { return previews_; }

    /// Shows the preview so many places on, or says that there is none.
    void StepPreview(ScreenContext& context, int step);

    /// Puts what is on show on its form.
    void ShowPreview(Form& form) const;

    /// Prints what is on show.
    void PrintPreview();

    /// Closes all previews; the hub comes in front.
    void ClosePreviews(ScreenContext& context);

    /// Forgets the previews, whose form has been closed.
    void DropPreviews() { previews_.clear(); }

    /// Writes a preview, counted from 0, to a file, which is replaced whole. Throws FileError.
    void WritePreview(std::size_t index, ReportFormat format, const Path& file);

    /// The staging tables as the last run has left them. Throws DatabaseError or FileError.
    [[nodiscard]] StagedTables Tables(const ScreenContext& context);

  private:
    [[nodiscard]] Dialogs& dialogs() const { return site_.host.dialogs; }
    bool DemandReports(const ScreenContext& context);
    bool MayPrint(const Form* screen);
    void Guard(const std::function<void()>& run);
    void RemoveFormerPreviews(ScreenContext& context);
    void RunPrint(ScreenContext& context, const std::string& screen);
    void RunTicked(ScreenContext& context, const Form& hub);
    void MakePreviews(ScreenContext& context, ReportList& list);
    Report FillReport(const ScreenContext& context, const ListedReport& listed, const StagedTables& tables);
    void ShowFirstPreview(ScreenContext& context);

    // Export
    bool MayExport();
    std::string AskPrefix();
    [[nodiscard]] Path ExportFolder() const;
    void RunExport(ScreenContext& context, const Form& hub);
    bool MayReplace(const Path& file);
    int WriteFiles(ScreenContext& context, ReportList& list, const std::string& prefix);
    void TellCreated(int count);

    ReportSite site_;
    ReportFiles files_;
    StagingFile stagingFile_;
    std::unique_ptr<ReportEngine> engine_;
    std::vector<Preview> previews_;
    std::size_t shown_ = 0;  // the place in them of the one on show
};

}  // namespace kelvor
