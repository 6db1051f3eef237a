#pragma once

#include "forms/form_type.h"

namespace kelvor {

/// `ReDfF`: deflection tests on flexible pavements. Each gives the modulus of the subgrade and the effective
/// modulus of all layers above it.
FormType FlexibleDeflectionsForm();

}  // namespace kelvor
