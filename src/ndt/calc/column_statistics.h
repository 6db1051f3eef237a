#pragma once

#include <optional>
#include <vector>

#include "platform/real.h"

namespace kelvor {

/// How the values of one column spread over the tests, in the unit of the values.
struct ColumnStatistics {
    int tests = 0;                     // that have a value
    std::optional<Real> mean;          // of one test or more
    std::optional<Real> deviation;     // the standard deviation of a sample, by n - 1; of two tests or more
    std::optional<Real> variation;     // the coefficient of variation, per cent: deviation over mean
    std::optional<Real> percentile15;  // linear between the ordered values; of one test or more
    std::optional<Real> percentile85;
};

/// Nothing is given where there are too few values, or where a double cannot hold the result. There is no
/// coefficient of variation with a mean of 0.
ColumnStatistics DescribeColumn(std::vector<Real> values);

/// The value below which a part of all lies: linear between the two of the ascending values between which
/// the place part x (n - 1), counted from 0, falls. There must be a value, and `part` is from 0 to 1.
Real Percentile(const std::vector<Real>& ascending, double part);

}  // namespace kelvor
