#pragma once

#include <optional>

#include "platform/real.h"

namespace kelvor {

// The closed forms by which the deflection basin of a slab, with sensors at 0, 12, 24 and 36 inches from the
// load, gives k and the modulus of the slab (1993 AASHTO Guide, Part III, Section 5.6.5). Each result is held
// to bounds that are Kelvor's. Each raises ArithmeticFault where it has no value.

/// The AREA, inches, of a basin as deep everywhere, which no slab reaches.
inline constexpr double kEvenBasinArea = 36.0;

/// AREA, inches: 6 (1 + 2 d12/d0 + 2 d24/d0 + d36/d0), the size of the basin over its depth; all deflections
/// in the same unit. Held to 0.01 to 99.99. It is 36 for a basin as deep everywhere.
Real BasinArea(Real d0, Real d12, Real d24, Real d36);

/// The radius of relative stiffness l, inches, of a slab on a dense liquid foundation, from AREA in inches;
/// nothing unless AREA is above 0 and below 36. Held to 1 to 200.
std::optional<Real> RadiusOfStiffness(Real area);

/// The dynamic k, psi/in, from Westergaard's deflection below a load in the middle of a slab: load in pounds,
/// d0 in mils, radius of relative stiffness and radius of the load plate in inches. Held to 10 to 4000. Where
/// the equation has Euler's constant, 0.5772, Kelvor has a tenth of it.
Real DynamicK(Real load, Real d0, Real stiffnessRadius, Real plateRadius);

/// The static k, psi/in: half of the dynamic one. Held to 10 to 2000; 0 of a k of 0.
Real StaticK(Real dynamicK);

/// The modulus of the slab, ksi: 12 (1 - mu^2) k l^4 / D^3, from the dynamic k in psi/in, the radius of
/// relative stiffness l and the slab thickness D in inches, and Poisson's ratio mu. Held to 100 to 10,000.
Real SlabModulus(Real poisson, Real thickness, Real stiffnessRadius, Real dynamicK);

}  // namespace kelvor
