#pragma once

#include <string_view>

#include "units/units.h"

namespace kelvor {

/// The layer coefficient of a material by its name in the lists of materials; 0 for any other. (Typical
/// values of the 1993 AASHTO Guide, Part II, Section 2.3.5.)
double CoefficientOfMaterial(std::string_view material);

/// Stores the coefficient of a material with the existing layer of a row.
void SetLayerCoefFromMaterial(Units& units, int row, std::string_view material);

}  // namespace kelvor
