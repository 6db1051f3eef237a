#pragma once

#include <array>
#include <optional>
#include <string_view>

#include "calc/calc_context.h"

namespace kelvor {

/// The two bars of a chart of costs, of pavement A and B, in whole money: the cost summary worked out afresh,
/// from an annual cost of 0 and with faults passed over. Categories are "InitialCost", "MaintCost" (the
/// annual maintenance), "RehabCost" (all of maintenance and rehabilitation but that), "TotalExpenditures",
/// "PW" and "EUAC"; nothing for any other.
std::optional<std::array<double, 2>> CostSummaryValues(const CalcContext& context, std::string_view category);

}  // namespace kelvor
