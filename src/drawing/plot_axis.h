#pragma once

#include <string>
#include <vector>

#include "forms/chart.h"

namespace kelvor {

/// The range of an axis as it is drawn, and the numbers along it.
struct PlotAxis {
    double least = 0.0;
    double greatest = 1.0;
    std::vector<double> numbers = {};
    std::string picture = {};

    /// Where a value lies on the axis, 0 at its start and 1 at its end.
    [[nodiscard]] double PartOf(double value) const { return (value - least) / (greatest - least); }

    [[nodiscard]] std::string TextOf(double value) const;
};

/// The axis up of a chart: the range that it has, else as far as the data reach, from 0 on, in round numbers.
/// A ceiling above 0 is its greatest number.
PlotAxis AxisUp(const ChartData& sheet);

/// The axis across of lines and points, whose rows' labels are numbers.
PlotAxis AxisAcross(const ChartData& sheet);

}  // namespace kelvor
