#pragma once

#include "forms/form.h"
#include "forms/screen_context.h"

namespace kelvor {

/// A click on the button of one of the form's equations: refused with a message unless the initial
/// serviceability that it shows is above the terminal one. Solves for the field that had the focus before the
/// button: on a screen with two equations that field tells which one. A solved value is held within the
/// field's limits. Messages are shown; a refused or failed solve leaves the indicator as it was.
void SolveForClick(ScreenContext& context, Form& form, std::size_t equation);

/// What a form does when it is made.
void InitScreen(ScreenContext& context, Form& form);

/// What a form does when it becomes the current one.
void LoadScreen(ScreenContext& context, Form& form);

/// Works out anew what follows from the values of a form to which a side screen has just returned. What
/// `LoadScreen` made its indicators say stands: looking at a side screen has not solved the equation.
void RecalcOnReturn(ScreenContext& context, Form& form);

/// Asks whether a form whose values are not balanced shall close, and keeps the warning for the next
/// opening. False if it shall stay.
bool ConfirmScreenClose(ScreenContext& context, Form& form);

}  // namespace kelvor
