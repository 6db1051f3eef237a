#pragma once

#include <vector>

#include "forms/form_type.h"

namespace kelvor {

// What the averages of deflection tests give for the fields of an overlay design.

/// The soil resilient modulus, from tests on a flexible pavement.
TakeOver SoilModulusFromDeflections(const char* variable);

/// The effective structural number of all layers that are there, from their thickness and the average of
/// their effective modulus.
TakeOver StructuralNumberFromDeflections(const char* variable);

/// The static k below a slab and the modulus of its concrete, from tests on the bare slab.
std::vector<TakeOver> SlabFromDeflections();

/// The same from tests on a slab below asphalt.
std::vector<TakeOver> CompositeSlabFromDeflections();

/// The static k alone, where the concrete is that of the overlay.
TakeOver SubgradeReactionFromDeflections();

}  // namespace kelvor
