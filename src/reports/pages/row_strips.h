#pragma once

#include <vector>

#include "reports/document/document.h"
#include "reports/pages/strip.h"
#include "reports/pages/type_setter.h"

namespace kelvor {

/// A text that stands between two edges of the page's text, points.
struct RowCell {
    std::vector<SetLine> lines;
    double left = 0.0;
    double width = 0.0;
    Alignment alignment = Alignment::Left;
};

/// Sets cells side by side: a strip for each line of the highest. A row of few lines is kept together; of a
/// higher one the first two lines are, and the last two.
std::vector<Strip> RowStrips(const std::vector<RowCell>& cells);

/// Moves strips apart from those above and below, by making the first and the last higher.
void Pad(std::vector<Strip>& strips, double above, double below);

}  // namespace kelvor
