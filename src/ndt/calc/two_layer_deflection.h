#pragma once

#include "platform/real.h"

namespace kelvor {

/// A flexible pavement under the load plate of a deflection test, taken as one layer on its subgrade.
struct TwoLayerPavement {
    Real plateRadius;      // a, inches
    Real load;             // P, pounds
    Real subgradeModulus;  // MR, psi, as it was backcalculated
    Real thickness;        // D, inches, of all layers above the subgrade
};

/// The deflection at the centre of the load plate, mils, of a pavement whose layers have the effective
/// modulus Ep, psi. Raises ArithmeticFault where the equation has no value, as for a negative modulus. (1993
/// AASHTO Guide, Part III, Section 5.4.5; the Guide's 1.5 p a is 1.5 P / (pi a) here, with pi to seven
/// decimals.)
Real CenterDeflection(const TwoLayerPavement& pavement, Real effectiveModulus);

}  // namespace kelvor
