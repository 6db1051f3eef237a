#pragma once

#include "forms/form.h"
#include "forms/screen_context.h"

namespace kelvor {

/// Writes, for each equation of a form, the line that says what its button solves for, and the line that says
/// from the stored cells alone whether they satisfy the equation: "In balance" within 0.2 per cent of the
/// traffic that the equation gives; and on a form that tells it, what decides its result. It touches no flag
/// and no indicator. With no project open all are empty.
void ShowEquationLines(const ScreenContext& context, Form& form);

}  // namespace kelvor
