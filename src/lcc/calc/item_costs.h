#pragma once

#include <string_view>

#include "calc/calc_context.h"

namespace kelvor {

// The costs of the items of a grid, in money of today and as present worth, at the rate `DiscountRate`, per
// cent. Inputs that were not entered count as 0; nothing is bounded. Quantities are those of the active unit
// system, for which the unit costs are entered. (1993 AASHTO Guide, Part I, Chapter 3.)

/// The initial cost of an item: `InitialQuantity` times `InitialUnitCost`, written to `target`.
void CalcInitialItemCost(CalcContext& context, std::string_view target, int row, int pavement);

/// The same, always written to `InitialItemCost`.
void CalcInitialItem(CalcContext& context, std::string_view target, int row, int pavement);

/// The cost of an item of maintenance and rehabilitation: `RehabQuantity` times `RehabUnitCost`, and for the
/// annual maintenance in row 1 times the years of the analysis period.
void CalcRehabItemCost(CalcContext& context, std::string_view target, int row, int pavement);

/// Its present worth: of `RehabItemCost`, spent in `RehabYear`. For the annual maintenance in row 1 of
/// `RehabQuantity` times `RehabUnitCost`, spent at the end of each year of the analysis period; it has none
/// at a rate of 0, and the cell stays as it was. A year beyond the period counts like any other.
void CalcRehabPresentWorth(CalcContext& context, std::string_view target, int row, int pavement);

/// The cost of an item of maintenance over the analysis period, `MaintQuantity` times `MaintUnitCost` times
/// its years: of the row and the pavement in which the user works, and written there.
void CalcMaintItemCost(CalcContext& context, std::string_view target);

/// Its present worth: of `MaintItemCost`, spent in `MaintYear`, all of it.
void CalcMaintPresentWorth(CalcContext& context, std::string_view target);

}  // namespace kelvor
