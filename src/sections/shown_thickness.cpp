#include "sections/shown_thickness.h"

#include <algorithm>

#include "platform/number_text.h"
#include "platform/real.h"

namespace kelvor {

double ShownThickness(const Units& units, std::string_view variable, int row) {
    return std::max(0.0, ParseNumber(BlankToZero(units.GetDisplayValue(variable, row, 1))));
}

double ShownThicknessOfTable(const Units& units, std::string_view variable) {
    Real sum = 0.0;
    for (int row = 1; row <= kDrawnLayers; ++row) sum += ShownThickness(units, variable, row);
    return sum.value();
}

}  // namespace kelvor
