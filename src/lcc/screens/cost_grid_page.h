#pragma once

#include "forms/screen_context.h"
#include "lcc/calc/cost_grid.h"

namespace kelvor {

class Form;

// What the pages of initial costs and of rehabilitation have in common: quantities that follow from the
// geometry of the pavement, in units that follow the unit system.

/// A cell under the cursor was written: a picked item fills its quantity and its unit. A unit that is changed
/// under a metric quantity leaves it as it is, and a note says so.
void FollowCostCell(ScreenContext& context, Form& page, const CostGrid& grid);

/// True if a unit of the page, of either pavement, is not of the active system.
bool StandsInOtherUnits(const ScreenContext& context, const CostGrid& grid);

/// Brings the names of a page's units over to the active system, also those of the rows whose quantities do
/// not follow. True if there were any.
bool SwapUnitNames(const ScreenContext& context, const Form& page, const CostGrid& grid);

}  // namespace kelvor
