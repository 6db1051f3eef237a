#pragma once

#include "platform/real.h"

namespace kelvor {

/// The structural layer coefficient a of dense-graded asphalt concrete, which has no unit, from its elastic
/// modulus at 68 degrees Fahrenheit in ksi: a = 0.171 ln(E in psi) - 1.784, the published fit of the 1993
/// AASHTO Guide, Part II, Figure 2.5. The figure draws it from 100 to 500 ksi; outside that range the fit
/// just goes on, and is negative below 34 ksi. Raises ArithmeticFault at 0 and below.
Real AsphaltCoefficient(Real modulusKsi);

}  // namespace kelvor
