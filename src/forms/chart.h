#pragma once

#include <optional>
#include <string>
#include <vector>

namespace kelvor {

struct ChartSeries {
    std::string name;
    std::string colour;  // "#RRGGBB"
};

/// A row of the data sheet: a cell for each series. The label of a line's row is its place on the axis
/// across.
struct ChartRow {
    std::string label;
    std::vector<std::optional<double>> cells;
};

struct ChartAxis {
    std::string title;
    double least = 0.0;
    double greatest = 1.0;
    double step = 1.0;
    std::string picture;  // of the numbers along it
};

/// A chart of lines with its data sheet: all that it draws stands here.
struct ChartData {
    std::string title;
    ChartAxis across;
    ChartAxis up;
    std::vector<ChartSeries> series;
    std::vector<ChartRow> rows;
};

}  // namespace kelvor
