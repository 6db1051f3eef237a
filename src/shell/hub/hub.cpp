#include "shell/hub/hub.h"

#include <array>
#include <iterator>

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

void Load(ScreenContext& context, Form& hub, Control* /*control*/) {
    LoadCostTab(hub);
    LoadListsTab(context, hub);
}

/// What the hub offers follows from which screens there are and from what the project holds.
void UpdateOffers(ScreenContext& context, Form& hub, bool entered) {
    OfferDeclaredScreens(context, hub);
    OfferTrafficRoutes(context, hub);
    UpdateOverlayReportOptions(context, hub);
    OfferReports(context, hub, entered);
    OfferListButtons(hub);
}

void FocusOnFirst(ScreenContext& context, Form& hub) {
    hub.focus = nullptr;
    Control* first = hub.NextInTabOrder(nullptr, true);
    if (first != nullptr) FormEvents(context).MoveFocus(hub, *first);
}

/// The hub comes in front again: values changed on other screens appear.
void Activate(ScreenContext& context, Form& hub, Control* /*control*/) {
    LoadScreen(context, hub);
    UpdateOffers(context, hub, false);
    FocusOnFirst(context, hub);
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
    UpdateOffers(context, hub, true);
    if (tab == HubTab::Lists) EnterListsTab(context, hub);
    FocusOnFirst(context, hub);
}

FormType HubForm() {
    FormType type;
    type.name = kHubForm;
    type.tag = kProjectIdKey;
    type.caption = "Kelvor";
    type.isHub = true;
    type.needsProject = false;
    type.handlers = {
        {FormEvent::Load, "", HandlerOrder::Instead, Load},
        {FormEvent::Activate, "", HandlerOrder::Instead, Activate},
    };
    std::vector<LayoutNode> pages;
    for (const auto& makeTab : kTabs) {
        HubPage tab = makeTab();
        pages.push_back(std::move(tab.page));
        type.handlers.insert(type.handlers.end(), tab.handlers.begin(), tab.handlers.end());
    }
    type.layout = Pages("VSIndexTab", std::move(pages));
    return type;
}

}  // namespace kelvor
