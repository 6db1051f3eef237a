#pragma once

#include "calc/dispatch.h"

namespace kelvor {

/// The calculations of the layered flexible structure (1993 AASHTO Guide, Part II, Section 3.1.5).
KeyTable LayeredStructureKeys();

/// Empties the additional thickness of every layer but one, and calculates that one: at any moment only the
/// layer under the cursor shows it.
void ClearAdditThick(CalcContext& context, const Dispatch& calculations, int layer);

}  // namespace kelvor
