#pragma once

#include "forms/form_type.h"

namespace kelvor {

/// `H_LDLayerCoef` and `H_ACACOLLC`: the layer coefficient of asphalt concrete against its modulus, and a box
/// for the coefficient of the layer, or of the overlay, that the help was opened for.
FormType LayerCoefficientHelp();
FormType OverlayCoefficientHelp();

/// The layer coefficient of dense-graded asphalt concrete whose elastic modulus at 68 degrees Fahrenheit is
/// given in ksi: a = 0.171 ln(E in psi) - 1.784, the published fit of the 1993 AASHTO Guide's Figure 2.5,
/// drawn there from 100 to 500 ksi.
double AsphaltCoefficient(double modulusKsi);

}  // namespace kelvor
