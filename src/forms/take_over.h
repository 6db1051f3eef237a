#pragma once

#include <string>

#include "forms/form.h"
#include "forms/screen_context.h"

namespace kelvor {

/// Shows on each button of a form that takes a value over what that value is now, as its field would show
/// it; a button without a value is hidden.
void ShowTakeOvers(const ScreenContext& context, Form& form);

/// The value that there is to take over for a field, in its picture and in the active unit; empty if there is
/// none.
std::string TakeOverText(const ScreenContext& context, const Form& form, const std::string& variable);

}  // namespace kelvor
