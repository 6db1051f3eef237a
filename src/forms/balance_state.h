#pragma once

#include <string>

#include "forms/screen_context.h"

namespace kelvor {

/// Which of a form's two indicators: SolveFor or SolveFor2.
enum class Indicator { First = 0, Second = 1 };

/// Sets an indicator: at rest, warning, or solved, which shows the label, and the value with its unit
/// unless that is no unit worth showing. A form without the indicator, or with a hidden one, is left alone.
void SetSolveForState(Form& form, SolveState state, const std::string& label = {},
                      const std::string& value = {}, const std::string& unit = {},
                      Indicator which = Indicator::First);

/// Shows the warning on the indicator of the equation that a variable's field stands in.
void WarnOfChange(const ScreenContext& context, Form& form, const std::string& variable);

/// Writes the value of the field that had the focus last into the indicator of its equation, if that field
/// can be solved for and its value is not 0. A warning is left alone: only a solve clears it.
void ShowSolved(ScreenContext& context, Form& form);

/// Moves the stored values and the units of the active system to the controls, then ShowSolved.
void RefreshScreen(ScreenContext& context, Form& form);

/// Recalculates a screen's outputs, but the single value whose name changed, in the order of the catalogue;
/// of a column only the cells of a row. Then RefreshScreen.
void RecalcOutputs(ScreenContext& context, Form& form, std::string_view changedName, int row);

/// Recalculates every filled cell of a screen's computed columns.
void RecalcAllOutputs(ScreenContext& context, Form& form);

/// Recalculates the computed columns of every row of a screen in which a cell is filled.
void RecalcFilledRows(ScreenContext& context, Form& form);

/// Solves for the field that had the focus before the button: on a screen with two equations that field tells
/// which one. A solved value is held within the field's
/// limits. Messages are shown; a refused or failed solve leaves the indicator as it was.
void SolveForClick(ScreenContext& context, Form& form);

/// What a form does when it is made.
void InitScreen(ScreenContext& context, Form& form);

/// What a form does when it becomes the current one.
void LoadScreen(ScreenContext& context, Form& form);

/// Asks whether a form whose values are not balanced shall close, and keeps the warning for the next
/// opening. False if it shall stay.
bool ConfirmScreenClose(ScreenContext& context, Form& form);

}  // namespace kelvor
