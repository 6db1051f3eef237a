#include "ndt/calc/column_statistics.h"

#include <algorithm>
#include <cmath>

#include "calc/ignore_faults.h"

namespace kelvor {

namespace {

Real MeanOf(const std::vector<Real>& values) {
    Real sum = 0.0;
    for (const Real value : values) sum = sum + value;
    return sum / static_cast<double>(values.size());
}

void DescribeSpread(const std::vector<Real>& values, ColumnStatistics& statistics) {
    const Real mean = *statistics.mean;
    Real squares = 0.0;
    for (const Real value : values) squares = squares + Pow(value - mean, 2.0);
    statistics.deviation = Pow(squares / static_cast<double>(values.size() - 1), 0.5);
    if (mean != 0.0) statistics.variation = 100.0 * *statistics.deviation / mean;
}

}  // namespace

ColumnStatistics DescribeColumn(std::vector<Real> values) {
    ColumnStatistics statistics;
    statistics.tests = static_cast<int>(values.size());
    if (values.empty()) return statistics;
    std::sort(values.begin(), values.end());
    IgnoreFaults([&] {
        statistics.percentile15 = Percentile(values, 0.15);
        statistics.percentile85 = Percentile(values, 0.85);
        statistics.mean = MeanOf(values);
        if (values.size() > 1) DescribeSpread(values, statistics);
    });
    return statistics;
}

Real Percentile(const std::vector<Real>& ascending, double part) {
    const double place = part * static_cast<double>(ascending.size() - 1);
    const auto below = static_cast<std::size_t>(std::floor(place));
    const std::size_t above = std::min(below + 1, ascending.size() - 1);
    return ascending[below] + (place - static_cast<double>(below)) * (ascending[above] - ascending[below]);
}

}  // namespace kelvor
