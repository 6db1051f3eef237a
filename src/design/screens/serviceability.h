#pragma once

#include "forms/screen_context.h"

namespace kelvor {

/// True if the initial serviceability on a form is above the terminal one; else tells that it is not.
bool CheckServiceability(ScreenContext& context, const Form& form, const char* initial, const char* terminal);

}  // namespace kelvor
