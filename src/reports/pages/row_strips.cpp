#include "reports/pages/row_strips.h"

#include <algorithm>

namespace kelvor {

namespace {

/// Between the lines of a text, points.
constexpr double kLeading = 1.0;

/// Rows of more lines than this may be parted by the end of a page.
constexpr std::size_t kLinesTogether = 8;

double LeftOf(const RowCell& cell, const SetLine& line) {
    return cell.alignment == Alignment::Right ? cell.left + cell.width - line.width : cell.left;
}

/// One line of each cell that has as many.
Strip LineAcross(const std::vector<RowCell>& cells, std::size_t number) {
    Strip strip;
    double ascent = 0.0;
    double descent = 0.0;
    for (const RowCell& cell : cells) {
        if (number >= cell.lines.size()) continue;
        ascent = std::max(ascent, cell.lines[number].ascent);
        descent = std::max(descent, cell.lines[number].height - cell.lines[number].ascent);
    }
    for (const RowCell& cell : cells) {
        if (number >= cell.lines.size()) continue;
        strip.lines.push_back({cell.lines[number], LeftOf(cell, cell.lines[number]), ascent});
    }
    strip.height = ascent + descent + kLeading;
    return strip;
}

}  // namespace

std::vector<Strip> RowStrips(const std::vector<RowCell>& cells) {
    std::size_t most = 0;
    for (const RowCell& cell : cells) most = std::max(most, cell.lines.size());
    std::vector<Strip> strips;
    for (std::size_t i = 0; i < most; ++i) {
        strips.push_back(LineAcross(cells, i));
        const bool isLast = i + 1 == most;
        strips.back().keepWithNext = !isLast && (most <= kLinesTogether || i == 0 || i + 2 == most);
    }
    return strips;
}

void Pad(std::vector<Strip>& strips, double above, double below) {
    if (strips.empty()) return;
    strips.front().height += above;
    for (PlacedLine& line : strips.front().lines) line.baseline += above;
    strips.back().height += below;
}

}  // namespace kelvor
