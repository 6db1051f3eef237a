#pragma once

#include <vector>

#include "forms/form_type.h"

namespace kelvor {

/// The seven overlay screens: `OvAA`, `OvAFP`, `OvAP`, `OvAAP`, `OvBP`, `OvUP` and `OvWT`. Each solves its
/// design equation for what future traffic needs, sets against it what the existing pavement still carries,
/// and shows the overlay thickness that makes up the difference.
std::vector<FormDeclaration> OverlayForms();

}  // namespace kelvor
