#pragma once

#include "forms/form_type.h"

namespace kelvor {

/// `ReDfC`: deflection tests on asphalt over a slab. Each gives the k below the slab and the modulus of its
/// concrete.
FormType CompositeDeflectionsForm();

}  // namespace kelvor
