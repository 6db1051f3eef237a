#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "forms/form.h"
#include "forms/screen_context.h"

namespace kelvor {

/// What an indicator shows of a solved field.
struct SolvedValue {
    std::string label;
    std::string value;
    std::string unit;
};

/// The label of an equation's indicator; null if the form has no such equation.
Control* IndicatorLabel(Form& form, std::size_t equation);

/// The place, among the form's equations, of the one that a field stands in.
std::size_t EquationOf(const ScreenContext& context, const Form& form, const Field& field);

/// The catalogue's row of a form's field; null if the field is none of the screen's.
const Field* FindScreenField(const ScreenContext& context, const Form& form, std::string_view variable);

/// The field of the form that had the focus last; null if there was none.
const Control* CurrentField(const Form& form);
Control* CurrentField(Form& form);

/// Sets an indicator: at rest, warning, or solved, which shows the label, and the value with its unit
/// unless that is no unit worth showing. A form without the equation, or with a hidden indicator, is left
/// alone.
void SetSolveForState(Form& form, SolveState state, std::size_t equation = 0, const SolvedValue& solved = {});

/// Shows the value of a solved field on the indicator of its equation.
void ShowSolvedField(const ScreenContext& context, Form& form, const Field& field);

/// Writes the value of the field that had the focus last into the indicator of its equation, if that field
/// can be solved for and its value is not 0. A warning is left alone: only a solve clears it.
void ShowSolved(ScreenContext& context, Form& form);

/// Shows the warning on the indicator of the equation that a variable's field stands in.
void WarnOfChange(const ScreenContext& context, Form& form, const std::string& variable);

/// True if an indicator says that an input has changed since the last solve.
bool ShowsWarning(const Control& indicator);

}  // namespace kelvor
