#pragma once

#include <functional>
#include <string>
#include <vector>

#include "forms/form.h"
#include "forms/screen_context.h"
#include "reports/run/report_items.h"
#include "reports/staging/staging_database.h"

namespace kelvor {

/// A report of a run, whose staging tables are filled.
struct ListedReport {
    const ReportName* report = nullptr;
    const char* screen = nullptr;  // the catalogue key of the screen that it reports
};

/// The reports of a run under way, and the titles of those that were left out since their screens are not
/// balanced. It holds the staging tables open; what was staged stays when Finish was called.
class ReportList {
  public:
    /// Throws DatabaseError.
    ReportList(const ScreenContext& context, const Path& stagingFile);

    void StageGeneral();

    /// Whether a report is wanted, asked just before it is staged.
    using Wish = std::function<bool(const ReportName&)>;
    static bool IsAlwaysWanted(const ReportName& report);

    /// Stages and lists an item, or its title where its equation is not balanced. `takesPart` lets the
    /// unbonded overlay go without what is not known of the existing pavement.
    void Take(const ReportItem& item, bool takesPart, const Wish& isWanted = IsAlwaysWanted);

    /// Takes every item that is ticked on the hub.
    void TakeTicked(const Form& hub, const Wish& isWanted = IsAlwaysWanted);

    /// Ends the staging. All tables as they stand then.
    StagedTables Finish();

    [[nodiscard]] const std::vector<ListedReport>& reports() const { return reports_; }

    /// A title a line, each with its line feed.
    [[nodiscard]] const std::string& unbalanced() const { return unbalanced_; }
    [[nodiscard]] bool IsEmpty() const { return reports_.empty() && unbalanced_.empty(); }

  private:
    const ScreenContext& context_;
    StagingDatabase database_;
    Stager stager_;
    std::vector<ListedReport> reports_;
    std::string unbalanced_;
};

}  // namespace kelvor
