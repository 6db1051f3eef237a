#pragma once

#include <array>

#include "calc/calc_context.h"

namespace kelvor {

/// The two pavements that are compared: the second subscript of every cell of a cost grid.
inline constexpr int kPavementA = 1;
inline constexpr int kPavementB = 2;
inline constexpr std::array kPavements = {kPavementA, kPavementB};

/// The row of the maintenance and rehabilitation grid that holds the annual maintenance, a cost of every
/// year; what stands in the rows below is spent once, in a year of its own.
inline constexpr int kAnnualMaintenanceRow = 1;

/// The last row of a cost grid.
inline constexpr int kLastCostRow = 35;

/// The analysis period of a pavement, years: `AnalysisPeriodA`, or `AnalysisPeriodB` for any other than the
/// first.
inline Real AnalysisPeriod(const CalcContext& context, int pavement) {
    return context.Get(pavement == kPavementA ? "AnalysisPeriodA" : "AnalysisPeriodB");
}

}  // namespace kelvor
