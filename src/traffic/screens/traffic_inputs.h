#pragma once

#include "forms/form.h"
#include "forms/screen_context.h"

namespace kelvor {

/// The inputs that all routes to the ESALs share, as copies that are only read.
LayoutElement TrafficInputCopies();

/// Shows the word of the period among these copies; nothing for a code that is none.
void ShowPeriod(const ScreenContext& context, Form& form);

}  // namespace kelvor
