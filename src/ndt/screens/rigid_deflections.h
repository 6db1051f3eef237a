#pragma once

#include "forms/form_type.h"

namespace kelvor {

/// `ReDfR`: deflection tests on slabs. Each gives the k below the slab and the modulus of its concrete.
FormType RigidDeflectionsForm();

}  // namespace kelvor
