#pragma once

#include <array>
#include <string_view>

#include "calc/calc_context.h"
#include "platform/real.h"

namespace kelvor {

/// What the flexible design equation takes beside the structural number.
struct FlexibleInputs {
    Real S0;  // overall standard deviation
    Real MR;  // effective roadbed resilient modulus, psi
    Real P0;  // initial serviceability
    Real Pt;  // terminal serviceability
};

/// What the rigid design equation takes beside the thickness.
struct RigidInputs {
    Real S0;  // overall standard deviation
    Real MR;  // modulus of rupture of the concrete, psi
    Real Ec;  // modulus of elasticity of the concrete, psi
    Real J;   // load transfer coefficient
    Real k;   // effective modulus of subgrade reaction, pci
    Real Cd;  // drainage coefficient
    Real P0;  // initial serviceability
    Real Pt;  // terminal serviceability
};

/// The traffic, in 18-kip ESALs and not rounded, that a structural number carries at a deviate ZR (1993
/// AASHTO Guide, Part II, Figure 3.1). Raises ArithmeticFault where the equation has no value.
Real FlexibleTraffic(Real ZR, const FlexibleInputs& inputs, Real SN);

/// The same for a slab thickness D in inches (1993 AASHTO Guide, Part II, Figure 3.7).
Real RigidTraffic(Real ZR, const RigidInputs& inputs, Real D);

/// The traffic, in 18-kip ESALs, that a structural number carries, at the deviate ZR
/// that was looked up last. Rounded to a multiple of 100 if it is above 100. A
/// fault shows the overflow message and leaves `w18` as it was.
void EvaluateFlexible(CalcContext& context, const FlexibleInputs& inputs, Real SN, Real& w18);

/// The same for a slab thickness D in inches.
void EvaluateRigid(CalcContext& context, const RigidInputs& inputs, Real D, Real& w18);

/// The equation of a pavement type, "Flexible" (or "Flex") or "Rigid" in any case, with the names of its
/// inputs: S0, MR, P0, Pt, and four empty ones; or S0, MR, Ec, J, k, Cd, P0, Pt. Another type leaves
/// `w18` untouched.
void EvaluateE18(CalcContext& context, std::string_view pavementType, Real x, Real& w18,
                 const std::array<std::string_view, 8>& names);

/// Design traffic as the equations state it: a multiple of 100 where it is above 100.
Real RoundTraffic(Real w18);

}  // namespace kelvor
