#include "shell/hub/hub.h"

#include <array>
#include <string_view>
#include <utility>

#include "forms/balance_state.h"
#include "forms/form.h"
#include "forms/form_events.h"
#include "platform/text.h"
#include "shell/hub/screen_choice.h"
#include "shell/hub/tabs.h"

namespace kelvor {

namespace {

/// The catalogue keys by which two of the tabs go.
constexpr const char* kProjectIdKey = "InfForm";
constexpr const char* kCostKey = "EcFa";

constexpr std::array kTabs = {ProjectIdTab, TrafficTab, DesignTab, OverlaysTab,
                              CostTab,      ReportsTab, ListsTab,  StartTab};
static_assert(kTabs.size() == kHubTabs);

void Load(ScreenEvent& event) {
    LoadCostTab(event.form);
    LoadListsTab(event.form);
    OfferProject(event.context, event.form);
}

void FocusOnFirst(ScreenContext& context, Form& hub) {
    hub.focus = nullptr;
    Control* first = hub.NextInTabOrder(nullptr, TabStep::Next);
    if (first != nullptr) FormEvents(context).MoveFocus(hub, *first);
}

/// The hub comes in front again: values changed on other screens appear.
void Activate(ScreenEvent& event) {
    LoadScreen(event.context, event.form);
    FocusOnFirst(event.context, event.form);
}

/// The rates and years that the hub shows are the same in both systems.
void UnitsSwitched(ScreenEvent& /*event*/) {}

/// What a tab offers follows the project each time it is entered.
void OfferOnTab(const ScreenContext& context, Form& hub, HubTab tab) {
    if (tab == HubTab::Traffic) {
        OfferByNeeds(context, hub, HubGroup::Traffic);
        OfferReportsOf(context, hub, report_category::kTraffic);
    }
    if (tab == HubTab::Overlays) {
        OfferByNeeds(context, hub, HubGroup::Overlays);
        OfferReportsOf(context, hub, report_category::kOverlays);
    }
    if (tab == HubTab::LifeCycleCosting) OfferCostReport(context, hub);
    if (tab == HubTab::Reports) OfferReports(context, hub);
}

void ScreenClosed(ScreenEvent& event) {
    Form* hub = event.context.forms.Find(kHubForm);
    if (hub == nullptr) return;
    switch (FindHubRow(event.form.name())->decidesOn) {
        case DecidesOn::Nothing:
            break;
        case DecidesOn::TrafficRoutes:
            OfferByNeeds(event.context, *hub, HubGroup::Traffic);
            OfferReportsByInputs(event.context, *hub, report_category::kTraffic);
            break;
        case DecidesOn::Overlays:
            OfferByNeeds(event.context, *hub, HubGroup::Overlays);
            break;
    }
}

}  // namespace

std::optional<HubTab> HubTabNamed(std::string_view screen) {
    if (EqualNoCase(screen, kProjectIdKey)) return HubTab::ProjectId;
    if (EqualNoCase(screen, kCostKey)) return HubTab::LifeCycleCosting;
    return std::nullopt;
}

bool NeedsProject(HubTab tab) { return tab == HubTab::ProjectId || tab == HubTab::LifeCycleCosting; }

void EnterHubTab(ScreenContext& context, Form& hub, HubTab tab) {
    hub.ShowPage(static_cast<int>(tab));
    if (tab == HubTab::ProjectId) hub.tag = kProjectIdKey;
    if (tab == HubTab::LifeCycleCosting) hub.tag = kCostKey;
    if (NeedsProject(tab)) LoadScreen(context, hub);
    OfferOnTab(context, hub, tab);
    if (tab == HubTab::Lists) EnterListsTab(context, hub);
    FocusOnFirst(context, hub);
}

void OfferProject(const ScreenContext& context, Form& hub) {
    OfferByNeeds(context, hub, HubGroup::Traffic);
    OfferByNeeds(context, hub, HubGroup::Overlays);
    OfferReports(context, hub);
}

void LetTellHub(FormType& screen) {
    const HubRow* row = FindHubRow(screen.name);
    if (row == nullptr || row->decidesOn == DecidesOn::Nothing) return;
    screen.handlers.push_back({FormEvent::Unload, "", HandlerOrder::After, ScreenClosed});
}

FormType HubForm() {
    FormType type;
    type.name = kHubForm;
    type.tag = kProjectIdKey;
    type.caption = "Kelvor";
    type.foot = {};
    type.isHub = true;
    type.needsProject = false;
    type.handlers = {
        {FormEvent::Load, "", HandlerOrder::Instead, Load},
        {FormEvent::Activate, "", HandlerOrder::Instead, Activate},
        {FormEvent::UnitsSwitched, "", HandlerOrder::Instead, UnitsSwitched},
    };
    std::vector<layout::Page> pages;
    for (const auto& makeTab : kTabs) {
        HubPage tab = makeTab();
        pages.push_back(std::move(tab.page));
        type.handlers.insert(type.handlers.end(), tab.handlers.begin(), tab.handlers.end());
    }
    type.layout = Pages("VSIndexTab", std::move(pages));
    return type;
}

}  // namespace kelvor
