#pragma once

#include <string_view>
#include <vector>

#include "forms/form.h"
#include "forms/form_type.h"
#include "forms/screen_context.h"

namespace kelvor {

/// What one tab adds to the hub: its page, and the routines of its controls.
struct HubPage {
    layout::Page page;
    std::vector<Handler> handlers;
};

HubPage ProjectIdTab();
HubPage TrafficTab();
HubPage DesignTab();
HubPage OverlaysTab();
HubPage CostTab();
HubPage ReportsTab();
HubPage ListsTab();
HubPage StartTab();

/// Reports can be ticked whose screens hold data: those of a category that has boxes, that of the costs, or
/// all of them.
void OfferReportsOf(const ScreenContext& context, Form& hub, std::string_view category);
void OfferCostReport(const ScreenContext& context, Form& hub);
void OfferReports(const ScreenContext& context, Form& hub);

/// When the inputs that all screens of a category share are closed, its reports follow these alone.
void OfferReportsByInputs(const ScreenContext& context, Form& hub, std::string_view category);

/// The discount rate is computed, and the focus may rest on it.
void LoadCostTab(Form& hub);

/// The grid of the lists has rows of its own. They are read when the tab is entered.
void LoadListsTab(Form& hub);

/// The buttons of the lists need a list to work on.
void OfferListButtons(Form& hub);

/// Reads the names of the lists, and the one that is chosen, again.
void EnterListsTab(ScreenContext& context, Form& hub);

}  // namespace kelvor
