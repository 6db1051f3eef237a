#pragma once

#include <string>

#include "calc/calc_context.h"

namespace kelvor {

/// Reads the comparison of the two pavements out: which costs less a year, at which discount rates between 0
/// and 15 per cent another one has the lower present worth, and which page to open first where the annual
/// maintenance was priced with another period or rate. Empty unless the annual costs of both can be worked
/// out now: neither the rate nor a period is 0, and nothing is beyond what a double holds.
std::string CostVerdict(const CalcContext& context);

}  // namespace kelvor
