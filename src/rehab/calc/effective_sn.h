#pragma once

#include <string_view>

#include "calc/calc_context.h"
#include "platform/real.h"

namespace kelvor {

/// The effective structural number that an AC overlay of AC pavement is designed with: the smaller of the one
/// by deflection tests, `NDTEFFSN`, and the one by condition survey, `CONDEFFSN`. One of them alone counts if
/// the other is 0, which means not entered; with both 0 or one negative there is none, and 0 is written.
/// (1993 AASHTO Guide, Part III, Section 5.4.5, which leaves the choice to the engineer.)
void ChooseEffectiveSN(CalcContext& context, std::string_view target);

/// The effective structural number by deflection tests, 0.0045 D Ep^(1/3), from the total thickness D of all
/// layers above the subgrade, inches, and their effective modulus Ep, psi. 0 if one of them is 0; not
/// bounded. Raises ArithmeticFault for a negative modulus. (1993 AASHTO Guide, Part III, Section 5.4.5.)
Real EffectiveSNFromDeflections(Real thicknessInches, Real modulusPsi);

}  // namespace kelvor
