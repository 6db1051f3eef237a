#include "forms/indicator.h"

#include <algorithm>
#include <array>

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
    const std::size_t equation = EquationOf(context, form, *field);
    if (IndicatorLabel(form, equation) == nullptr) return nullptr;
    if (form.equations[equation].state == SolveState::Warning) return nullptr;
    return ParseNumber(context.units.GetDisplayValue(field->name)) == 0.0 ? nullptr : field;
}

}  // namespace

Control* IndicatorLabel(Form& form, std::size_t equation) {
    return equation < form.equations.size() ? form.Find(form.type().equations[equation].indicator) : nullptr;
}

std::size_t EquationOf(const ScreenContext& context, const Form& form, const Field& field) {
    const std::vector<const SolveKey*> equations = context.calculations.EquationsOf(form.tag);
    const auto found = std::find(equations.begin(), equations.end(),
                                 context.calculations.FindEquation(form.tag, field.seq.value_or(0)));
    return found == equations.end() ? 0 : static_cast<std::size_t>(found - equations.begin());
}

const Field* FindScreenField(const ScreenContext& context, const Form& form, std::string_view variable) {
    const auto fields = context.catalogue.FieldsOfScreen(form.tag);
    const auto found = std::find_if(fields.begin(), fields.end(),
                                    [&](const Field* f) { return EqualNoCase(f->name, variable); });
    return found == fields.end() ? nullptr : *found;
}

const Control* CurrentField(const Form& form) {
    return form.iCurrentField ? form.controls()[*form.iCurrentField].get() : nullptr;
}

Control* CurrentField(Form& form) {
    return form.iCurrentField ? form.controls()[*form.iCurrentField].get() : nullptr;
}

void SetSolveForState(Form& form, SolveState state, std::size_t equation, const SolvedValue& solved) {
    Control* indicator = IndicatorLabel(form, equation);
    if (indicator == nullptr || !indicator->visible) return;
    form.equations[equation].state = state;
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
            indicator->text =
                solved.label + "\r\n" + solved.value + " " + (IsShownAsUnit(solved.unit) ? solved.unit : "");
            break;
    }
}

void ShowSolvedField(const ScreenContext& context, Form& form, const Field& field) {
    const Variable* variable = context.catalogue.FindVariable(field.name);
    const std::size_t equation = EquationOf(context, form, field);
    if (equation >= form.equations.size()) return;
    form.equations[equation].solvedFor = field.name;
    SetSolveForState(
        form, SolveState::Solved, equation,
        {variable->desc, context.units.GetDisplayValue(field.name), context.units.UnitLabel(field.name)});
}

void ShowSolved(ScreenContext& context, Form& form) {
    const Field* shown = FieldToShow(context, form);
    if (shown != nullptr) ShowSolvedField(context, form, *shown);
    // The other half of a screen keeps what it shows, in the units of now.
    for (const EquationState& equation : form.equations) {
        if (equation.state != SolveState::Solved) continue;
        const Field* field = FindScreenField(context, form, equation.solvedFor);
        if (field != nullptr && field != shown) ShowSolvedField(context, form, *field);
    }
}

void WarnOfChange(const ScreenContext& context, Form& form, const std::string& variable) {
    const Field* field = FindScreenField(context, form, variable);
    SetSolveForState(form, SolveState::Warning, field == nullptr ? 0 : EquationOf(context, form, *field));
}

bool ShowsWarning(const Control& indicator) { return indicator.text.starts_with(kWarningStart); }

}  // namespace kelvor
