#pragma once

#include <string_view>

#include "calc/calc_context.h"
#include "platform/real.h"

namespace kelvor {

// AC overlays whose thickness makes up a slab thickness: of PCC pavement (1993 AASHTO Guide, Part III,
// Section 5.6) and of AC/PCC pavement (Section 5.7). All thicknesses are in inches, and inputs that were not
// entered count as 0. The bounds are Kelvor's, the Guide has none; a result of exactly 0 passes them.

/// A: how many inches of AC stand for one inch of PCC where a slab lacks so many inches; above 1.6 for any
/// lack.
Real AsphaltPerConcrete(Real lackInches);

/// The effective thickness of an existing slab: `EXISTDEPTH` times the factors of joints and cracks
/// `ACPCFJC`, of durability `ACPCFDUR` and of fatigue `ACPCFFAT`. Held to 0 to 20.
void CalcEffectiveSlab(CalcContext& context, std::string_view target);

/// The AC overlay of a slab: A (Df - Deff) with the future thickness `ACPCFUTD`, the effective one
/// `ACPCEFFD`. Held to 0 to 30.
void CalcOverlayOfSlab(CalcContext& context, std::string_view target);

/// The effective thickness of AC/PCC pavement, as of a slab: half of the AC layer `ACACPCACT` times its
/// quality factor `ACACPCFAC`, and the slab `EXISTDEPTH` times the factors of durability `ACACPCFDUR` and of
/// joints and cracks `ACACPCFJC`. Held to 0 to 20.
void CalcEffectiveComposite(CalcContext& context, std::string_view target);

/// The AC overlay of AC/PCC pavement: A times what `ACPCEFFD` lacks of the future thickness `ACACPCFUTD`.
/// Only A is worked out with the effective thickness of this pavement, `ACACPCEFFD`; the Guide multiplies by
/// Df less that one too. What an overlay of PCC was designed with so takes part here: 0, if none was. Held to
/// 0 to 30.
void CalcOverlayOfComposite(CalcContext& context, std::string_view target);

}  // namespace kelvor
