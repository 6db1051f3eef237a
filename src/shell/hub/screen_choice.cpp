#include "shell/hub/screen_choice.h"

#include <algorithm>
#include <array>
#include <optional>

#include "forms/form_events.h"
#include "forms/side_screen.h"
#include "shell/hub/offer.h"

namespace kelvor {

namespace {

struct ScreenChoice {
    const char* button = "";
    const char* option = "";
    const char* screen = "";
    std::optional<int> slice = {};  // of a screen that has several: the pavement, the category of cost
};

/// What the buttons open, in the order in which they look at their options.
constexpr std::array kChoices = {
    ScreenChoice{"Command1", "PavementTrafficFactors", "TrFa"},
    ScreenChoice{"Command1", "AxleData", "TrAx"},
    ScreenChoice{"Command1", "VehicleType", "TrVe"},
    ScreenChoice{"Command1", "TrafficFactor", "TrTr"},
    ScreenChoice{"Command4", "oDeR", "DeR"},
    ScreenChoice{"Command4", "oDeF", "DeF"},
    ScreenChoice{"Command4", "oDeS", "DeS"},
    ScreenChoice{"Command7", "oOvBP", "OvBP"},
    ScreenChoice{"Command7", "oOvUP", "OvUP"},
    ScreenChoice{"Command7", "oOvWT", "OvWT"},
    ScreenChoice{"Command7", "oOvAA", "OvAA"},
    ScreenChoice{"Command7", "oOvAP", "OvAP"},
    ScreenChoice{"Command7", "oOvAAP", "OvAAP"},
    ScreenChoice{"Command7", "oOvAFP", "OvAFP"},
    ScreenChoice{"Command7", "oExR", "ExR"},
    ScreenChoice{"Command7", "oExF", "ExF"},
    ScreenChoice{"Command7", "oExC", "ExC"},
    ScreenChoice{"Command7", "RPNDTCalc", "ReDfR"},
    ScreenChoice{"Command7", "FPNDTCalc", "ReDfF"},
    ScreenChoice{"Command7", "CPNDTCalc", "ReDfC"},
    ScreenChoice{"Command2", "oLcA1", "LcA1", 1},
    ScreenChoice{"Command2", "oLcA2", "LcA1", 2},
    ScreenChoice{"Command2", "oLcS", "LcS"},
    ScreenChoice{"Command8", "InitialCost", "CostChart", 1},
    ScreenChoice{"Command8", "MaintenanceCosts", "CostChart", 2},
    ScreenChoice{"Command8", "RehabilitationCosts", "CostChart", 3},
    ScreenChoice{"Command8", "PW", "CostChart", 4},
    ScreenChoice{"Command8", "EUAC", "CostChart", 5},
    ScreenChoice{"Command8", "ExpenditureHistogram", "Histogr"},
};

bool IsSelected(const Form& hub, const ScreenChoice& choice) {
    const Control* option = hub.Find(choice.option);
    return option != nullptr && option->value;
}

bool HasClick(const FormType& type, const Control& button) {
    return std::any_of(type.handlers.begin(), type.handlers.end(), [&](const Handler& handler) {
        return handler.event == FormEvent::Click && EqualNoCase(handler.control, button.name);
    });
}

bool OpensSomething(const ScreenContext& context, const Control& button) {
    const auto isOf = [&](const ScreenChoice& choice) { return button.name == choice.button; };
    if (std::none_of(kChoices.begin(), kChoices.end(), isOf)) return true;
    return std::any_of(kChoices.begin(), kChoices.end(), [&](const ScreenChoice& choice) {
        return isOf(choice) && IsDeclared(context, choice.screen);
    });
}

}  // namespace

void OpenChosenScreen(ScreenEvent& event) {
    for (const ScreenChoice& choice : kChoices) {
        if (event.control->name != choice.button || !IsSelected(event.form, choice)) continue;
        FormEvents(event.context).Open({.form = choice.screen, .dim2 = choice.slice});
        return;
    }
}

void OfferDeclaredScreens(const ScreenContext& context, Form& hub) {
    for (const ScreenChoice& choice : kChoices) {
        (void)hub.Get(choice.button);  // a table that names what is not there fails at start
        Offer(hub, choice.option, IsDeclared(context, choice.screen), kComesLater);
    }
    for (const auto& control : hub.controls()) {
        if (!control->IsButton()) continue;
        const bool works = HasClick(hub.type(), *control) && OpensSomething(context, *control);
        Offer(hub, control->name, works, kComesLater);
    }
}

}  // namespace kelvor
