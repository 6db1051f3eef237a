#pragma once

#include <array>
#include <optional>
#include <span>
#include <string_view>

#include "catalogue/catalogue.h"
#include "forms/form_registry.h"

namespace kelvor {

/// The options that stand together on a tab of the hub.
enum class HubGroup { Traffic, Designs, Existing, Overlays, Deflections, Costs, Graphs };

/// The button that opens what is selected in a group.
const char* HubButton(HubGroup group);

/// What must have been entered before a screen is of use.
struct HubNeeds {
    std::span<const char* const> variables = {};
    const char* whyNot = "";  // while one of them is empty; empty: those that are empty are named
};

/// What a screen must hold before its report can be ticked; see screen_data.h.
enum class ReportWants { Nothing, Data, Cells, AxleCells };

/// The categories of reports, by the names of their options.
namespace report_category {
inline constexpr const char* kDesign = "rbND";
inline constexpr const char* kOverlays = "rbOV";
inline constexpr const char* kTraffic = "rbTr";
inline constexpr const char* kCost = "rbCost";
}  // namespace report_category

/// The check box that asks for the report of a screen.
struct HubReport {
    const char* category = "";  // empty: the screen has no report on the hub
    int place = 0;              // among the boxes of the category, from 1
    const char* box = "";
    const char* caption = "";
    ReportWants wants = ReportWants::Nothing;
    bool needsInputs = false;  // it also needs what the screen's option needs
};

/// The pages of cost data whose cells decide that the costs can be reported; the catalogue's names.
inline constexpr std::array kCostPages = {"LcA1", "LcA1_2", "LcA1_4", "LcA2", "LcA2_2", "LcA2_4"};

/// What the hub offers anew when a screen is closed, whose values decide it.
enum class DecidesOn { Nothing, TrafficRoutes, Overlays };

/// All that the hub knows of a screen.
struct HubRow {
    HubGroup group = {};
    const char* option = "";
    const char* caption = "";
    const char* does = "";  // what the screen is for; translated where it is shown
    const char* screen = "";
    std::optional<int> slice = {};  // of a screen that has several: the pavement, the category of cost
    HubNeeds needs = {};
    DecidesOn decidesOn = DecidesOn::Nothing;
    HubReport report = {};
};

/// The screens that the hub opens. The options of a group stand in this order.
std::span<const HubRow> HubTable();

/// The first row of a screen; null if the hub does not open it.
const HubRow* FindHubRow(std::string_view screen);

/// Looks for slips of the pen in a row: a screen that is not declared, a need that is no variable, a report
/// box of which no report is made. Throws std::logic_error with the names of the option and of the slip.
void CheckHubRow(const HubRow& row, const FormRegistry& forms, const Catalogue& catalogue);

/// The same for every row; also that no option and no place of a report box is given twice, and that the
/// pages of costs are screens.
void CheckHubTable(const FormRegistry& forms, const Catalogue& catalogue);

}  // namespace kelvor
