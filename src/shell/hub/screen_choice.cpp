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

bool HasClick(const FormType& type, const Control& button) {
    return std::any_of(type.handlers.begin(), type.handlers.end(), [&](const Handler& handler) {
        return handler.event == FormEvent::Click && EqualNoCase(handler.control, button.name);
    });
}

/// True for a button that opens screens if one of them is declared, and for any other button.
bool OpensSomething(const ScreenContext& context, const Control& button) {
    const auto rows = HubTable();
    const auto isOf = [&](const HubRow& row) { return button.name == HubButton(row.group); };
    if (std::none_of(rows.begin(), rows.end(), isOf)) return true;
    return std::any_of(rows.begin(), rows.end(),
                       [&](const HubRow& row) { return isOf(row) && context.forms.IsDeclared(row.screen); });
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
        if (row.group == group) options.push_back({row.option, row.caption});
    }
    return Options(std::move(options));
}

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

void OfferDeclaredScreens(const ScreenContext& context, Form& hub) {
    for (const HubRow& row : HubTable()) {
        Offer(hub, row.option, context.forms.IsDeclared(row.screen), kComesLater);
    }
    for (const auto& control : hub.controls()) {
        if (!control->IsButton()) continue;
        const bool works = HasClick(hub.type(), *control) && OpensSomething(context, *control);
        Offer(hub, control->name, works, kComesLater);
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
        if (!context.forms.IsDeclared(row.screen)) continue;
        const std::string whyNot = WhatIsMissing(context, row.needs);
        Offer(hub, row.option, whyNot.empty(), whyNot);
    }
}

}  // namespace kelvor
