#include "forms/take_over.h"

#include "calc/ignore_faults.h"
#include "platform/number_picture.h"
#include "platform/text.h"

namespace kelvor {

namespace {

constexpr const char* kArrow = "\u2191 ";  // the value goes to the field above

std::string ShownText(const ScreenContext& context, const TakeOver& source) {
    const Variable* variable = context.catalogue.FindVariable(source.variable);
    std::string text;
    if (variable == nullptr || !context.calc.store.IsOpen()) return text;
    IgnoreFaults([&] {
        const auto value = source.value(context.calc);
        if (!value) return;
        text = FormatNumber((*value * context.units.UnitFactor(variable->units)).value(), variable->format);
    });
    return text;
}

}  // namespace

void ShowTakeOvers(const ScreenContext& context, Form& form) {
    for (const TakeOver& source : form.type().takeOvers) {
        const std::string text = ShownText(context, source);
        Control& button = form.Get(TakeOverButtonName(source.variable));
        button.text = text.empty() ? "" : kArrow + text;
        button.visible = !text.empty();
    }
}

std::string TakeOverText(const ScreenContext& context, const Form& form, const std::string& variable) {
    for (const TakeOver& source : form.type().takeOvers) {
        if (EqualNoCase(source.variable, variable)) return ShownText(context, source);
    }
    return {};
}

}  // namespace kelvor
