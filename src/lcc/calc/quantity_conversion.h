#pragma once

#include "calc/calc_context.h"

namespace kelvor {

/// The last row of a cost grid whose quantity follows a switch of the unit system.
inline constexpr int kLastConvertedRow = 25;

/// Brings the quantities of initial costs, of both pavements, over to the active unit system, and their
/// units' names with them: rows 1 to 25, the rows below keep what they have. A quantity starts from its text,
/// which is always in English units; in metric units one whose unit has no factor, as has one that is metric
/// already, stays. A quantity without a text is emptied, and one whose text is no number stays. Then
/// `InitialItemCost` of each of these rows, 0 of one without a quantity, and `ItemTotal2` of both pavements
/// are worked out anew; unit costs stay as they are. A step that has no value is passed over. True if a row
/// has another unit then.
bool ConvertInitialQuantities(CalcContext& context);

/// The same for maintenance and rehabilitation, with `RehabItemCost`, `PWCostR`, `ItemTotal4` and
/// `PrWorthTotal4`.
bool ConvertRehabQuantities(CalcContext& context);

}  // namespace kelvor
