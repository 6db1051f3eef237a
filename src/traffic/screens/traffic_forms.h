#pragma once

#include <vector>

#include "forms/form_type.h"

namespace kelvor {

/// The screens that determine the design traffic, and the helps of their inputs.
std::vector<FormDeclaration> TrafficForms();

}  // namespace kelvor
