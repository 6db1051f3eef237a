#pragma once

#include <optional>
#include <span>
#include <string_view>

#include "forms/form_type.h"
#include "reports/staging/stager.h"

namespace kelvor {

/// A report: one layout, one preview, one exported file.
struct ReportName {
    const char* name;    // of the layout: Rep_<name>.vsr
    const char* title;   // in messages and previews
    const char* suffix;  // of the name of the exported file
};

/// As many previews as one run can have.
inline constexpr std::size_t kMostReports = 15;

/// What can be ticked or printed: it fills the staging tables, and gives one report or, for costs, two.
struct ReportItem {
    const char* box = "";                  // its tick on the tab Reports
    const char* screen = "";               // the catalogue key of the screen that it reports
    std::optional<BalanceFlag> flag = {};  // it is made only while this is set

    /// Fills its staging tables. True if anything is known of the existing pavement.
    bool (*stage)(Stager& stager, const char* screen) = nullptr;

    const char* report = "";
    const char* second = nullptr;  // a further report of the same tables
    const char* part = nullptr;    // what the tab takes instead if nothing is known of the existing pavement
};

/// The items in the order of a run.
std::span<const ReportItem> ReportItems();

/// The item that reports a screen, by its catalogue key without regard to case; null if there is none.
const ReportItem* FindReportItem(std::string_view screen);

/// A report by its name. Throws std::logic_error if there is none.
const ReportName& FindReport(std::string_view name);

}  // namespace kelvor
