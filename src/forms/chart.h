#pragma once

#include <optional>
#include <string>
#include <vector>

namespace kelvor {

/// How the rows of a chart's data sheet are drawn.
enum class ChartKind {
    Line,         // a line a series; a row's label is its place on the axis across
    Points,       // the same as single points
    GroupedBars,  // a group of bars a row, one bar a series; the labels stand below the groups
    StackedBars,  // a layer a row, the lowest first, in the colour of the series of the same place; its
                  // cells are its parts of the bars from left to right, and its label stands in them
    Section,      // a pavement: a layer a row, the lowest first, of one cell, its thickness; the series of
                  // the same place says of what it is
};

/// What a layer of a pavement is made of, which decides how it is drawn.
enum class Material { Other, Asphalt, Concrete, Treated, Granular, Interlayer, Subgrade };

struct ChartSeries {
    std::string name;
    std::string colour;                   // "#RRGGBB"
    Material material = Material::Other;  // of a section
    bool hollowPoints = false;  // of lines or points: drawn as single hollow points, whatever the kind

    bool operator==(const ChartSeries&) const = default;
};

/// A row of the data sheet. Its cells are the series' in their order; of stacked bars, those of the bars.
struct ChartRow {
    std::string label;
    std::vector<std::optional<double>> cells;

    bool operator==(const ChartRow&) const = default;
};

/// An axis. Without a range of its own it reaches as far as the data, in round numbers.
struct ChartAxis {
    std::string title;
    double least = 0.0;
    double greatest = 0.0;  // no more than the least: as far as the data reach
    double step = 0.0;      // between its numbers; 0: found
    std::string picture;    // of the numbers along it

    bool operator==(const ChartAxis&) const = default;
};

/// A chart with its data sheet: all that it draws stands here. A screen may change any of it at any time; a
/// front end shows what stands here after each event.
struct ChartData {
    ChartKind kind = ChartKind::Line;
    std::string title;         // its lines divided by "\n"
    double ceiling = 0.0;      // the greatest number of the axis up that was passed in; 0: none. The layers
                               // of a section count from the top of the subgrade
    bool showsValues = false;  // each bar or point has its number beside it
    ChartAxis across;
    ChartAxis up;  // of a section: its unit and the picture of its thicknesses
    std::vector<ChartSeries> series;
    std::vector<ChartRow> rows;

    bool operator==(const ChartData&) const = default;
};

}  // namespace kelvor
