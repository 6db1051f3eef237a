#pragma once

#include <optional>
#include <string>

#include "forms/screen_context.h"
#include "platform/dialogs.h"

namespace kelvor {

/// The text of a cell of a form's grid, in the active unit system. Reads the cells in memory, never a query.
std::string GridReadCell(const ScreenContext& context, const Form& form, int row, const GridColumn& column);

/// What a cell has to say beside its text; empty if there is nothing.
std::string GridCellNote(const ScreenContext& context, const Form& form, int row, const GridColumn& column);

/// True if the user can edit a cell: it is not computed, and the grid does not keep it as it is.
bool GridTakesEdit(const ScreenContext& context, const Form& form, int row, const GridColumn& column);

/// Stores a text, given in the active unit system, in a cell of a form's grid.
void GridWriteCell(ScreenContext& context, Form& form, int row, const GridColumn& column,
                   const std::string& text);

/// A cell is being edited: the project has changed, unless the grid shows none of it.
void GridChange(ScreenContext& context, Form& form);

/// The value with its unit that the text being typed on a form stands for, as "= 150 mm"; empty for a plain
/// number and for what cannot be read.
std::string EntryPreview(const ScreenContext& context, const Form& form);

/// What was typed into a cell as a plain number, if it is a multiple, a fraction, a sum or a value with its
/// unit; any other text stands.
std::string GridEntry(const ScreenContext& context, const GridColumn& column, const std::string& text);

/// Why a column does not take a text; nothing if it does. A number must be one and lie within the range of
/// the active unit system; a list takes its entries alone; any cell takes an empty text.
std::optional<Message> GridRefusal(const ScreenContext& context, const GridColumn& column,
                                   const std::string& text);

/// True if a text may be stored in a column; else its message was shown.
bool GridBeforeColUpdate(ScreenContext& context, Form& form, const GridColumn& column,
                         const std::string& text);

/// The edit of a cell is over.
void GridAfterColUpdate(Form& form);

/// Fills the lists of a form's grid with the entries for the active unit system. If they cannot be read, it
/// says so, and they are empty.
void FillValueItems(ScreenContext& context, Form& form);

/// The same if the lists have been filled with the entries of the other unit system.
void BringItemsOver(ScreenContext& context, Form& form);

}  // namespace kelvor
