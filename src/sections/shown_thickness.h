#pragma once

#include <string>
#include <string_view>

#include "units/units.h"

namespace kelvor {

/// How many layers of a table of layers are drawn.
inline constexpr int kDrawnLayers = 6;

/// The thickness of a layer as the screens show it, rounded, in the active unit system. 0 for an empty cell,
/// a missing variable, a text that is no number, and less than nothing.
double ShownThickness(const Units& units, std::string_view variable, int row = 1);

/// The sum of the first rows of a table, as they are shown. Raises ArithmeticFault if no double holds it.
double ShownThicknessOfTable(const Units& units, std::string_view variable);

}  // namespace kelvor
