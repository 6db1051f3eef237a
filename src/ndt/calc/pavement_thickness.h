#pragma once

#include "calc/calc_context.h"

namespace kelvor {

/// Writes `NDTEFFD`, the total thickness of a flexible pavement above its subgrade: the sum of all layers
/// `EXISTLT`, in inches, rounded to the whole inch as the screen shows it (a half away from zero), in either
/// unit system. 0 without layers. So the deflection equation always works with a whole number of inches.
void StorePavementThickness(CalcContext& context);

}  // namespace kelvor
