#pragma once

#include <string>
#include <string_view>

#include "forms/form.h"

namespace kelvor {

/// Enables a control of the hub, or takes it off, with the mark that it may have, and says why. Throws
/// std::logic_error for a name that is none.
void Offer(Form& hub, std::string_view name, bool enabled, const std::string& whyNot);

}  // namespace kelvor
