#pragma once

#include <string_view>

#include "calc/calc_context.h"

namespace kelvor {

/// The mean of a column over the tests that have a value in it, written to `target` in the column's own unit;
/// a test without one is left out, not counted as 0. 0 if no test has one.
void AverageColumn(CalcContext& context, std::string_view target, std::string_view column);

}  // namespace kelvor
