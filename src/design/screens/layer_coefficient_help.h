#pragma once

#include "forms/form_type.h"

namespace kelvor {

/// `H_LDLayerCoef` and `H_ACACOLLC`: the layer coefficient of asphalt concrete against its modulus, and a box
/// for the coefficient of the layer, or of the overlay, that the help was opened for.
FormType LayerCoefficientHelp();
FormType OverlayCoefficientHelp();

}  // namespace kelvor
