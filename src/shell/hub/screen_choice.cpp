#include "shell/hub/screen_choice.h"

#include <algorithm>
#include <string_view>
#include <utility>
#include <vector>

#include "forms/form_events.h"
#include "forms/side_screen.h"
#include "platform/translation.h"
#include "shell/hub/offer.h"
#include "shell/hub/screen_data.h"

namespace kelvor {

namespace {

bool IsSelected(const Form& hub, const HubRow& row) {
    const Control* option = hub.Find(row.option);
    return option != nullptr && option->value;
}

/// The labels of the fields that are still empty, in the order in which they are given; empty if none is.
std::string MissingFields(const ScreenContext& context, const HubNeeds& needs) {
    std::string missing;
    for (const char* field : needs.variables) {
        if (IsFilled(context, field)) continue;
        const Variable* variable = context.catalogue.FindVariable(field);
        missing += (missing.empty() ? "" : "; ") + (variable == nullptr ? field : variable->desc);
    }
    return missing;
}

}  // namespace

LayoutElement HubOptions(HubGroup group) {
    std::vector<ButtonItem> options;
    for (const HubRow& row : HubTable()) {
        if (row.group == group) options.push_back({row.option, row.caption, Translated(row.does)});
    }
    return Options(std::move(options));
}

std::string OpensChosenScreen() { return Translated("Open the chosen screen"); }

Handler OpeningChosenScreen(HubGroup group) {
    return {FormEvent::Click, HubButton(group), HandlerOrder::Instead, OpenChosenScreen};
}

void OpenChosenScreen(ScreenEvent& event) {
    for (const HubRow& row : HubTable()) {
        if (event.control->name != HubButton(row.group) || !IsSelected(event.form, row)) continue;
        FormEvents(event.context).Open({.form = row.screen, .dim2 = row.slice});
        return;
    }
}

std::string WhatIsMissing(const ScreenContext& context, const HubNeeds& needs) {
    const std::string missing = MissingFields(context, needs);
    const std::string_view whyNot = needs.whyNot;
    if (missing.empty()) return {};
    return whyNot.empty() ? Filled(Translated("needs %1"), {missing}) : std::string(whyNot);
}

void OfferByNeeds(const ScreenContext& context, Form& hub, HubGroup group) {
    for (const HubRow& row : HubTable()) {
        if (row.group != group || row.needs.variables.empty()) continue;
        const std::string whyNot = WhatIsMissing(context, row.needs);
        Offer(hub, row.option, whyNot.empty(), whyNot);
    }
}

}  // namespace kelvor
