#pragma once

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

/// Why an option is off that needs the inputs that all routes to the ESALs share.
inline constexpr const char* kInputsMissing = "needs the values of Pavement & Traffic Inputs";

/// True if these inputs are filled.
bool TrafficInputsFilled(const ScreenContext& context);

/// The routes to the ESALs need the inputs that all of them share.
void OfferTrafficRoutes(const ScreenContext& context, Form& hub);

/// Which overlays can be designed follows from what is known of the existing pavement.
void UpdateOverlayReportOptions(const ScreenContext& context, Form& hub);

/// Reports can be ticked whose screens hold data: those of a category, or of all of them.
void OfferOverlayReports(const ScreenContext& context, Form& hub);
void OfferTrafficReports(const ScreenContext& context, Form& hub);
void OfferCostReport(const ScreenContext& context, Form& hub);
void OfferReports(const ScreenContext& context, Form& hub);

/// When the inputs that all routes share are closed, the reports of traffic follow these alone.
void OfferTrafficReportsByInputs(const ScreenContext& context, Form& hub);

/// The discount rate is computed, and the focus may rest on it.
void LoadCostTab(Form& hub);

/// The grid of the lists has rows of its own.
void LoadListsTab(ScreenContext& context, Form& hub);

/// The buttons of the lists need a list to work on.
void OfferListButtons(Form& hub);

/// Reads the names of the lists, and the one that is chosen, again.
void EnterListsTab(ScreenContext& context, Form& hub);

}  // namespace kelvor
