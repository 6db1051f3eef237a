#include "drawing/label_column.h"

#include <algorithm>

namespace kelvor {

namespace {

double Measure(std::vector<ColumnLabel>& labels, double lineHeight) {
    double needed = 0.0;
    for (ColumnLabel& label : labels) {
        label.height = static_cast<double>(label.lines.size()) * lineHeight;
        needed += label.height;
    }
    return needed;
}

void JoinLines(ColumnLabel& label) {
    std::string joined;
    for (const std::string& line : label.lines) joined += (joined.empty() ? "" : ", ") + line;
    label.lines = {joined};
}

}  // namespace

void PlaceLabels(std::vector<ColumnLabel>& labels, double lineHeight, double top, double bottom) {
    if (Measure(labels, lineHeight) > bottom - top) {
        for (ColumnLabel& label : labels) JoinLines(label);
        Measure(labels, lineHeight);
    }
    double free = top;
    for (ColumnLabel& label : labels) {
        label.top = std::max(label.wanted - label.height / 2.0, free);
        free = label.top + label.height;
    }
    free = bottom;
    for (auto label = labels.rbegin(); label != labels.rend(); ++label) {
        label->top = std::min(label->top, free - label->height);
        free = label->top;
    }
}

}  // namespace kelvor
