#pragma once

#include <string>
#include <vector>

namespace kelvor {

/// A label in a column of labels beside a drawing.
struct ColumnLabel {
    std::vector<std::string> lines;
    double wanted = 0.0;  // where its middle would best be
    double top = 0.0;     // where it stands
    double height = 0.0;
};

/// Gives each label a place between two heights, from the top down in their order, as near to where it would
/// best be as the others let it. Where there is no room for all lines, those of a label become one.
void PlaceLabels(std::vector<ColumnLabel>& labels, double lineHeight, double top, double bottom);

}  // namespace kelvor
