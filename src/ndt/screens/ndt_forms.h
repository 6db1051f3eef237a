#pragma once

#include <vector>

#include "forms/form_type.h"

namespace kelvor {

/// The screens of deflection tests on flexible, rigid and composite pavements.
std::vector<FormDeclaration> DeflectionForms();

}  // namespace kelvor
