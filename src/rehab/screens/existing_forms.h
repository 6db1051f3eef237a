#pragma once

#include <vector>

#include "forms/form_type.h"

namespace kelvor {

/// The screens of existing pavements, and the helps that work out what is left of them.
std::vector<FormDeclaration> ExistingPavementForms();

}  // namespace kelvor
