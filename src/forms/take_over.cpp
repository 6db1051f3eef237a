#include "forms/take_over.h"

#include "calc/ignore_faults.h"
#include "platform/text.h"

namespace kelvor {

namespace {

constexpr const char* kArrow = "\u2191 ";  // the value goes to the field above

std::string ShownText(const ScreenContext& context, const TakeOver& source) {
    std::string text;
    if (!context.calc.store.IsOpen()) return text;
    IgnoreFaults([&] {
        const auto value = source.value(context.calc);
        if (value) text = context.units.DisplayNumber(source.variable, value->value());
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
