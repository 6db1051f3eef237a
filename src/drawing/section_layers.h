#pragma once

#include <string>
#include <vector>

#include "forms/chart.h"

namespace kelvor {

/// A layer of a section that is drawn.
struct SectionLayer {
    std::vector<std::string> label;  // its lines
    double thickness = 0.0;          // above 0
    Material material = Material::Other;
    std::string colour = {};
    bool counts = true;  // in the total; the subgrade and an interlayer do not
};

/// The layers of a section's data sheet that have a thickness, the lowest first.
std::vector<SectionLayer> LayersOf(const ChartData& sheet);

/// The sum of the layers that count.
double TotalThickness(const std::vector<SectionLayer>& layers);

/// What the height of a section stands for: all that is drawn, or the ceiling above the subgrade where that
/// reaches higher. A section without layers shows its subgrade in the lower half.
double ReachOf(const ChartData& sheet, const std::vector<SectionLayer>& layers);

/// A thickness in the sheet's picture, with its unit.
std::string ThicknessText(const ChartData& sheet, double thickness);

/// The lines of a text, without blanks around them.
std::vector<std::string> LinesOf(const std::string& text);

}  // namespace kelvor
