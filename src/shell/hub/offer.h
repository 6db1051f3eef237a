#pragma once

#include <string>
#include <string_view>

#include "forms/form.h"
#include "forms/screen_context.h"

namespace kelvor {

/// Enables a control of the hub, or takes it off, with the mark that it may have, and says why. Throws
/// std::logic_error for a name that is none.
void Offer(Form& hub, std::string_view name, bool enabled, const std::string& whyNot);

/// True if the form of a screen is declared.
bool IsDeclared(const ScreenContext& context, std::string_view screen);

}  // namespace kelvor
