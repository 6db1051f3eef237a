#pragma once

#include <optional>

#include "calc/dispatch.h"
#include "platform/real.h"

namespace kelvor {

/// The calculations of the layered flexible structure (1993 AASHTO Guide, Part II, Section 3.1.5).
KeyTable LayeredStructureKeys();

/// The additional thickness, inches, by which one layer alone would make up for what the structure lacks:
/// that, over a, times m. The Guide's SN = a m D would divide by m; with m = 1 both are the same. Nothing for
/// a layer without coefficients.
std::optional<Real> AdditionalThickness(const CalcContext& context, int layer);

/// Empties the additional thickness of every layer but one, and calculates that one: at any moment only the
/// layer under the cursor shows it.
void ClearAdditThick(CalcContext& context, const Dispatch& calculations, int layer);

}  // namespace kelvor
