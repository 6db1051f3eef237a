#pragma once

#include <optional>
#include <string>
#include <vector>

#include "forms/grid_routines.h"
#include "forms/screen_context.h"

namespace kelvor {

/// The project's cells of a column of a grid: those of a variable with one second subscript.
struct ColumnCells {
    std::string variable;
    int dim2 = 1;
};

/// Asks, then empties a row of a form's grid and closes the grid up. Where the rows have gone; nothing if the
/// answer was No.
std::optional<RowMoves> GridDeleteRow(ScreenContext& context, Form& form, int row);

/// Moves the filled rows of a form's grid from a row on down by one, so that the row is empty. Where the rows
/// have gone, up to the last that may have changed; nothing, and nothing is moved, if the last of the grid's
/// rows is filled.
std::optional<RowMoves> GridInsertRow(ScreenContext& context, const Form& form, int row, int rows);

/// Lets two rows of a form's grid of so many rows change places. Where the rows have gone.
RowMoves GridSwapRows(ScreenContext& context, const Form& form, int row, int other, int rows);

/// Closes a grid up by whole rows: the rows in which a cell of any column is filled stand from row 1 on, in
/// their order, all columns in step, so that what was measured or laid together stays together. A cell that
/// a column does not have is passed over. Where the rows have gone.
RowMoves CompactRows(ProjectStore& store, const std::vector<ColumnCells>& columns, int rows);

}  // namespace kelvor
