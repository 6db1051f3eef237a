#pragma once

#include <string_view>

#include "calc/calc_context.h"

namespace kelvor {

// Sums over a column of a cost grid, in row order, every row of the project included; 0 if no row has a
// value. Raise ArithmeticFault if a double cannot hold the sum.

/// The initial costs of a pavement, written to `target` (1, pavement).
void SumInitialCosts(CalcContext& context, std::string_view target, int pavement);

/// The costs of maintenance and rehabilitation of a pavement, and their present worth.
void SumRehabCosts(CalcContext& context, std::string_view target, int pavement);
void SumRehabPresentWorth(CalcContext& context, std::string_view target, int pavement);

/// The costs of maintenance, and their present worth, of both pavements together; written to `target`
/// (1, pavement).
void SumMaintCosts(CalcContext& context, std::string_view target, int pavement);
void SumMaintPresentWorth(CalcContext& context, std::string_view target, int pavement);

}  // namespace kelvor
