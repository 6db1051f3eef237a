#include "drawing/plot_axis.h"

#include <algorithm>
#include <cmath>

#include "platform/number_picture.h"
#include "platform/number_text.h"

namespace kelvor {

namespace {

constexpr double kIntervals = 5.0;  // about so many between the numbers of an axis
constexpr int kMostNumbers = 50;

struct Reach {
    double least = 0.0;
    double greatest = 0.0;

    void Take(double value) {
        least = std::min(least, value);
        greatest = std::max(greatest, value);
    }
};

Reach ReachUp(const ChartData& sheet) {
    Reach reach;
    std::vector<double> bars;
    for (const ChartRow& row : sheet.rows) {
        bars.resize(std::max(bars.size(), row.cells.size()));
        for (std::size_t i = 0; i < row.cells.size(); ++i) {
            const double value = row.cells[i].value_or(0.0);
            bars[i] += value;
            if (sheet.kind != ChartKind::StackedBars) reach.Take(value);
        }
    }
    if (sheet.kind == ChartKind::StackedBars) {
        for (const double bar : bars) reach.Take(bar);
    }
    return reach;
}

/// A step of 1, 2 or 5 times a power of ten, a little more than the width's fifth.
double RoundStep(double width) {
    const double wanted = width / kIntervals;
    const double power = std::pow(10.0, std::floor(std::log10(wanted)));
    for (const double factor : {1.0, 2.0, 5.0}) {
        if (factor * power >= wanted) return factor * power;
    }
    return 10.0 * power;
}

/// A picture without decimals would show the numbers of smaller steps alike.
double LeastStep(const std::string& picture) {
    return picture.empty() || picture.find('.') != std::string::npos ? 0.0 : 1.0;
}

PlotAxis MakeAxis(const ChartAxis& declared, const Reach& reach, double ceiling) {
    const bool found = declared.greatest <= declared.least;
    PlotAxis axis{found ? std::min(declared.least, reach.least) : declared.least,
                  found ? std::max(declared.least, reach.greatest) : declared.greatest};
    if (ceiling > 0.0) axis.greatest = ceiling;
    if (axis.greatest <= axis.least) axis.greatest = axis.least + 1.0;
    axis.picture = declared.picture;
    const double round = std::max(RoundStep(axis.greatest - axis.least), LeastStep(axis.picture));
    const double step = declared.step > 0.0 ? declared.step : round;
    if (found && ceiling <= 0.0) {
        axis.least = step * std::floor(axis.least / step);
        axis.greatest = step * std::ceil(axis.greatest / step);
    }
    const double first = found ? std::ceil(axis.least / step) * step : axis.least;
    for (int i = 0; i < kMostNumbers; ++i) {
        const double number = first + i * step;
        if (number > axis.greatest + step * 1e-9) break;
        axis.numbers.push_back(number);
    }
    return axis;
}

}  // namespace

std::string PlotAxis::TextOf(double value) const {
    if (!picture.empty()) return FormatNumber(value, picture);
    const bool whole = value == std::round(value);
    return whole ? FormatNumber(value, "#,##0") : NumberToText(std::round(value * 1e9) / 1e9);
}

PlotAxis AxisUp(const ChartData& sheet) { return MakeAxis(sheet.up, ReachUp(sheet), sheet.ceiling); }

PlotAxis AxisAcross(const ChartData& sheet) {
    Reach reach;
    for (const ChartRow& row : sheet.rows) reach.Take(ParseNumber(row.label));
    return MakeAxis(sheet.across, reach, 0.0);
}

}  // namespace kelvor
