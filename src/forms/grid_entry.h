#pragma once

#include <string>

#include "forms/screen_context.h"

namespace kelvor {

/// The text of a cell of a form's grid, in the active unit system. Reads the cells in memory, never a query.
std::string GridReadCell(const ScreenContext& context, const Form& form, int row, const GridColumn& column);

/// Stores a text, given in the active unit system, in a cell of a form's grid.
void GridWriteCell(ScreenContext& context, Form& form, int row, const GridColumn& column,
                   const std::string& text);

/// A cell is being edited: the project has changed, unless the grid shows none of it.
void GridChange(ScreenContext& context, Form& form);

/// True if a text may be stored in a column; else its message was shown. A number must be one and lie within
/// the range of the active unit system; a list takes its entries alone; any cell takes an empty text.
bool GridBeforeColUpdate(ScreenContext& context, Form& form, const GridColumn& column,
                         const std::string& text);

/// The edit of a cell is over.
void GridAfterColUpdate(Form& form);

/// Asks, then empties a row and closes the gap, column by column. False if the answer was No.
bool GridDeleteRow(ScreenContext& context, Form& form, const GridData& grid, int row);

/// Moves the filled cells of a column up, so that they stand from row 1 on without a gap.
void CompactColumn(ProjectStore& store, const std::string& name, int rows, int dim2);

/// Fills the lists of a form's grid with the entries for the active unit system. If they cannot be read, it
/// says so, and they are empty.
void FillValueItems(ScreenContext& context, Form& form);

}  // namespace kelvor
