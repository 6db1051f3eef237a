#pragma once

#include <string_view>

#include "calc/calc_context.h"
#include "catalogue/list_database.h"
#include "lcc/calc/cost_grid.h"

namespace kelvor {

/// What picking an item does to its row of a cost grid: the unit and the quantity that the geometry of the
/// pavement gives the item. The item is the first of the grid's list, as it is offered in the active unit
/// system, that the text means (with wild cards and without regard to case); its place in the list is its
/// number in the quantity table. A text that means none, and a number beyond the table, leave the row as it
/// is. The costs of the row follow from the caller. Throws DatabaseError if the list cannot be read.
void FillItem(CalcContext& context, ListDatabase& lists, const CostGrid& grid, int row, int pavement,
              std::string_view item);

}  // namespace kelvor
