#pragma once

#include <vector>

#include "forms/form_type.h"

namespace kelvor {

/// The screens of new pavement design.
std::vector<FormDeclaration> DesignForms();

}  // namespace kelvor
