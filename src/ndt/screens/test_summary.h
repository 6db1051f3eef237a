#pragma once

#include <vector>

#include "forms/form_type.h"

namespace kelvor {

/// A column of results that a screen sums up below its table.
struct ResultColumn {
    const char* column;
    const char* average;  // the variable of its average
    const char* heading;  // translated where it is shown
    const char* chart;    // the name of its chart; null: it has none
};

/// Below the table of tests: a column for each of results with their average and how they spread (the number
/// of tests that count, their mean, the standard deviation, the coefficient of variation, the 15th and the
/// 85th percentile), and beside it the charts of the results by test number, each with the average as a line.
LayoutElement SpreadAndCharts(const std::vector<ResultColumn>& results);

/// Brings both up to date, in the active units.
void ShowResults(ScreenContext& context, Form& form, const std::vector<ResultColumn>& results);

}  // namespace kelvor
