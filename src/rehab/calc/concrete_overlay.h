#pragma once

#include <string_view>

#include "calc/calc_context.h"

namespace kelvor {

// PCC overlays of PCC pavement: bonded (1993 AASHTO Guide, Part III, Section 5.8) and unbonded (Section 5.9).
// All thicknesses are in inches, and inputs that were not entered count as 0. The bounds are Kelvor's: what
// can be laid, and what the design equation answers for.

/// The effective thickness of a slab below a bonded overlay: `EXISTDEPTH` times the factors of joints and
/// cracks `BOLFJC`, of durability `BOLFDUR` and of fatigue `BOLFFAT`. Held to 0 to 20.
void CalcBondedEffective(CalcContext& context, std::string_view target);

/// The bonded overlay: the future thickness `BOLFUTDEPTH` less the effective one `BOLEFFDEPTH`. Held to 2 to
/// 20; exactly 0 stays 0.
void CalcBondedOverlay(CalcContext& context, std::string_view target);

/// The future thickness that a bonded overlay `BOLDEPTH` gives; held to 4 to 20, exactly 0 stays 0.
void CalcBondedFuture(CalcContext& context, std::string_view target);

/// The effective thickness of a slab below an unbonded overlay: `EXISTDEPTH` times the factor of joints and
/// cracks `UBOLFJCU`. Held to 0 to 20.
void CalcUnbondedEffective(CalcContext& context, std::string_view target);

/// The unbonded overlay: the square root of what the square of the effective thickness `UBOLEFFDEPTH` lacks
/// of the square of the future one, `UBOLFUTDEPTH`. Held to 4 to 20, and 4 also where nothing is lacking.
void CalcUnbondedOverlay(CalcContext& context, std::string_view target);

/// The future thickness that an unbonded overlay `UBOLDEPTH` gives: the square root of the sum of both
/// squares. Held to 4 to 20; 4 also where both thicknesses are 0.
void CalcUnbondedFuture(CalcContext& context, std::string_view target);

}  // namespace kelvor
