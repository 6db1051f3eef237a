#pragma once

#include <string>
#include <vector>

#include "forms/screen_context.h"

namespace kelvor {

/// The project's cells of a column of a grid: those of a variable with one second subscript.
struct ColumnCells {
    std::string variable;
    int dim2 = 1;
};

/// Asks, then empties a row of a form's grid and closes the grid up. False if the answer was No.
bool GridDeleteRow(ScreenContext& context, Form& form, int row);

/// Closes a grid up by whole rows: the rows in which a cell of any column is filled stand from row 1 on, in
/// their order, all columns in step, so that what was measured or laid together stays together. A cell that
/// a column does not have is passed over.
void CompactRows(ProjectStore& store, const std::vector<ColumnCells>& columns, int rows);

}  // namespace kelvor
