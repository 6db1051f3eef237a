#include "forms/indicator.h"

#include <algorithm>
#include <array>

#include "design/calc/equation_screens.h"
#include "platform/number_text.h"
#include "platform/text.h"

namespace kelvor {

namespace {

const char* const kAtRest = "\r\nPress Solve For\r\n";
const char* const kWarning = "WARNING!\r\nInput Value Changed\r\nPress Solve For to Recalculate";

/// A caption that begins with these letters counts as a warning.
constexpr std::string_view kWarningStart = "WARNING!";

/// Unit texts that would only repeat what the label says. These are not quite the ones that no unit label
/// shows: an indicator says "80kN ESAL's".
bool IsShownAsUnit(const std::string& unit) {
    constexpr std::array<std::string_view, 3> kNotShown = {"No Units", "ESN", "MSN"};
    if (std::find(kNotShown.begin(), kNotShown.end(), unit) != kNotShown.end()) return false;
    return !(Like(unit, "18 kip*") || Like(unit, "80 kN*"));
}

/// The field of the last focus, if the indicator of its equation may show it; else null. An indicator at rest
/// is written over too: a refresh shows the value of the last field.
const Field* FieldToShow(const ScreenContext& context, Form& form) {
    const Control* current = CurrentField(form);
    if (current == nullptr) return nullptr;
    const Field* field = FindScreenField(context, form, current->name);
    if (field == nullptr || !field->solveFor) return nullptr;
    const Indicator which = IndicatorOf(form, *field);
    const Control* indicator = IndicatorLabel(form, which);
    const bool warns = form.solveState[static_cast<std::size_t>(which)] == SolveState::Warning;
    if (indicator == nullptr || warns) return nullptr;
    return ParseNumber(context.units.GetDisplayValue(field->name)) == 0.0 ? nullptr : field;
}

}  // namespace

Control* IndicatorLabel(Form& form, Indicator which) {
    return form.Find(which == Indicator::First ? "SolveFor" : "SolveFor2");
}

Indicator IndicatorOf(const Form& form, const Field& field) {
    const EquationScreen* equation = FindEquation(form.tag, field.seq.value_or(0));
    return equation == nullptr || equation->firstTerm == 1 ? Indicator::First : Indicator::Second;
}

const Field* FindScreenField(const ScreenContext& context, const Form& form, std::string_view variable) {
    const auto fields = context.catalogue.FieldsOfScreen(form.tag);
    const auto found = std::find_if(fields.begin(), fields.end(),
                                    [&](const Field* f) { return EqualNoCase(f->name, variable); });
    return found == fields.end() ? nullptr : *found;
}

Control* CurrentField(Form& form) {
    return form.iCurrentField ? form.controls()[*form.iCurrentField].get() : nullptr;
}

void SetSolveForState(Form& form, SolveState state, const std::string& label, const std::string& value,
                      const std::string& unit, Indicator which) {
    Control* indicator = IndicatorLabel(form, which);
    if (indicator == nullptr || !indicator->visible) return;
    form.solveState[static_cast<std::size_t>(which)] = state;
    const bool warns = state == SolveState::Warning;
    indicator->backColor = warns ? colours::kLightRed : colours::kResting;
    indicator->foreColor = warns ? colours::kBrightWhite : colours::kBlack;
    indicator->bold = state == SolveState::Solved;
    switch (state) {
        case SolveState::Resting:
            indicator->text = kAtRest;
            break;
        case SolveState::Warning:
            indicator->text = kWarning;
            break;
        case SolveState::Solved:
            indicator->text = label + "\r\n" + value + " " + (IsShownAsUnit(unit) ? unit : "");
            break;
    }
}

void ShowSolvedField(const ScreenContext& context, Form& form, const Field& field) {
    const Variable* variable = context.catalogue.FindVariable(field.name);
    const Indicator which = IndicatorOf(form, field);
    form.solvedFor[static_cast<std::size_t>(which)] = field.name;
    SetSolveForState(form, SolveState::Solved, variable->desc, context.units.GetDisplayValue(field.name),
                     context.units.UnitLabel(field.name), which);
}

void ShowSolved(ScreenContext& context, Form& form) {
    const Field* shown = FieldToShow(context, form);
    if (shown != nullptr) ShowSolvedField(context, form, *shown);
    // The other half of a screen keeps what it shows, in the units of now.
    for (const Indicator which : {Indicator::First, Indicator::Second}) {
        const auto place = static_cast<std::size_t>(which);
        if (form.solveState[place] != SolveState::Solved) continue;
        const Field* field = FindScreenField(context, form, form.solvedFor[place]);
        if (field != nullptr && field != shown) ShowSolvedField(context, form, *field);
    }
}

void WarnOfChange(const ScreenContext& context, Form& form, const std::string& variable) {
    const Field* field = FindScreenField(context, form, variable);
    SetSolveForState(form, SolveState::Warning, {}, {}, {},
                     field == nullptr ? Indicator::First : IndicatorOf(form, *field));
}

bool ShowsWarning(const Control& indicator) { return indicator.text.starts_with(kWarningStart); }

}  // namespace kelvor
