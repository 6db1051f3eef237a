#pragma once

#include <string_view>

#include "calc/calc_context.h"

namespace kelvor {

// AC overlays whose thickness makes up a structural number: of AC pavement (1993 AASHTO Guide, Part III,
// Section 5.4) and of a fractured slab (Section 5.5). Inputs that were not entered count as 0. The bounds are
// Kelvor's, the Guide has none; a result of exactly 0 passes them.

/// The thickness of an AC overlay of AC pavement, inches: what the effective structural number `ACACEFFSN`
/// lacks of the future one, `ACACFUTSN`, over the layer coefficient `ACACOLLC` of the overlay. Held to 0 to
/// 30, so that no overlay is needed where nothing is lacking; 0 without a layer coefficient.
void CalcOverlayOfAsphalt(CalcContext& context, std::string_view target);

/// The future structural number that an overlay of the thickness `ACACTHICK`, inches, gives to AC pavement;
/// held to 0 to 30.
void CalcFutureSNOfAsphalt(CalcContext& context, std::string_view target);

/// The effective structural number of a fractured slab and its subbase, a m D of both together: thickness in
/// inches, layer and drainage coefficient `CSPCLT`, `CSPCLC`, `CSPCDC` of the slab and `SUBLT`, `SUBLC`,
/// `SUBDC` of the subbase. Held to 0.25 to 15; 0 while nothing was entered.
void CalcFracturedSlabSN(CalcContext& context, std::string_view target);

/// The thickness of an AC overlay of a fractured slab, inches, from `ACCSFUTSN`, `ACCSEFFSN` and `ACCSOLLC`
/// as for AC pavement; held to 0 to 30, and 0 without a layer coefficient.
void CalcOverlayOfFracturedSlab(CalcContext& context, std::string_view target);

/// The future structural number that an overlay of the thickness `ACCSTHICK`, inches, gives to a fractured
/// slab; held to 0 to 30.
void CalcFutureSNOfFracturedSlab(CalcContext& context, std::string_view target);

}  // namespace kelvor
