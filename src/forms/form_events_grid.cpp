#include <algorithm>
#include <utility>

#include "forms/act_name.h"
#include "forms/coded_list.h"
#include "forms/form_events.h"
#include "forms/grid_entry.h"
#include "forms/grid_rows.h"
#include "forms/recalculation.h"
#include "platform/translation.h"

namespace kelvor {

namespace {

/// The grid of a form if it has the row and, unless none is named, the column; else null.
Control* FindGridWith(Form& form, int row, const std::string& variable) {
    Control* control = form.FindGrid();
    if (control == nullptr || row < 1 || row > control->grid->rows) return nullptr;
    return variable.empty() || control->grid->Find(variable) ? control : nullptr;
}

/// A row with a cell that cannot be edited, though its column can, stays where it is: it is what it is by its
/// place. In a grid that decides by rows alone which of them may go, all stay.
bool RowStays(const ScreenContext& context, const Form& form, const GridData& grid, int row) {
    const GridRoutines& routines = grid.routines;
    if (routines.mayEdit == nullptr) return routines.mayDelete != nullptr;
    return std::any_of(grid.columns.begin(), grid.columns.end(), [&](const GridColumn& column) {
        return !column.locked && !routines.mayEdit(context, form, row, column);
    });
}

void TellRowsMoved(Form& form, const GridData& grid, const RowMoves& moves) {
    if (grid.routines.rowsMoved != nullptr) grid.routines.rowsMoved(form, moves);
}

std::vector<int> RowsFromTo(int first, int last) {
    std::vector<int> rows;
    for (int row = first; row <= last; ++row) rows.push_back(row);
    return rows;
}

}  // namespace

// --- Cells --------------------------------------------------------------------------------------------

void FormEvents::TypeIntoCell(Form& form, Control& control, const std::string& text) {
    const GridData& grid = *control.grid;
    if (grid.rows == 0 || !GridTakesEdit(context_, form, grid.row, grid.current())) return;
    const std::vector<LetterWord>& words = control.grid->current().words;
    const std::string shown = control.grid->typed.value_or("");
    auto entry = words.empty() ? text : CompleteWord(words, shown, text, form.spelt);
    if (!entry) return;  // a letter of no word leaves the cell alone
    control.grid->typed = std::move(entry);
    GridChange(context_, form);
}

/// A letter that stands for a word is the whole entry, and any other leaves such a cell alone.
void FormEvents::TypeCharacterIntoCell(Form& form, Control& control, const std::string& character) {
    const std::vector<LetterWord>& words = control.grid->current().words;
    if (words.empty()) {
        Type(control.grid->typed.value_or("") + character);
        return;
    }
    if (!CompleteWord(words, {}, character, form.spelt)) return;
    Type(character);
    CommitCell(form, control);
}

/// Stores what was typed into the cell under the cursor. False if it was refused.
bool FormEvents::CommitCell(Form& form, Control& control) {
    const auto typed = std::exchange(control.grid->typed, std::nullopt);
    return !typed || StoreCell(form, control, *typed);
}

bool FormEvents::StoreCell(Form& form, Control& control, const std::string& typed) {
    const GridColumn& column = control.grid->current();
    const std::string text = GridEntry(context_, column, typed);
    const int row = control.grid->row;
    if (!GridBeforeColUpdate(context_, form, column, text)) return false;
    context_.act = ChangeOf(context_, column.variable, row);
    WriteCells(form, control, {{row, control.grid->column, text}});
    GridAfterColUpdate(form);
    NoteRowsWritten(form, control, {row});
    return true;
}

bool FormEvents::EditCell(Form& form, int row, const std::string& variable, const std::string& text) {
    if (!MoveToCell(form, row, variable)) return false;
    Control& control = *form.FindGrid();
    const bool arrived = form.focus == &control && control.grid->row == row;
    if (!arrived || control.grid->Find(variable) != control.grid->column) return true;
    TypeIntoCell(form, control, text);
    CommitCell(form, control);
    return true;
}

// --- Rows ---------------------------------------------------------------------------------------------

bool FormEvents::MoveToCell(Form& form, int row, const std::string& variable) {
    Control* control = FindGridWith(form, row, variable);
    if (control == nullptr) return false;
    const std::size_t column = variable.empty() ? control->grid->column : *control->grid->Find(variable);
    if (MoveFocus(form, *control)) MoveGridCursor(form, *control, row, column);
    return true;
}

bool FormEvents::DeleteRow(Form& form, int row) {
    Control* control = FindGridWith(form, row, {});
    if (control == nullptr) return false;
    if (!MoveFocus(form, *control)) return true;
    if (!MoveGridCursor(form, *control, row, control->grid->column)) return true;
    const auto mayDelete = control->grid->routines.mayDelete;
    if (mayDelete != nullptr && !mayDelete(context_, form, row)) return true;
    if (control->grid->texts) {
        if (!CommitCell(form, *control)) return true;
    } else if (const auto moves = GridDeleteRow(context_, form, row)) {
        control->grid->typed.reset();  // what was being typed has gone with its row
        form.SetFieldChanged(false);
        TellRowsMoved(form, *control->grid, *moves);
    } else {
        return true;
    }
    context_.act =
        Filled(Translated("deletion of %1 %2"), {Translated(form.type().rowName.one), std::to_string(row)});
    Handle(FormEvent::RowDeleted, form, control, [&] {
        RecalcAllOutputs(context_, form);
        RecalcOutputs(context_, form, "", 0);
    });
    return true;
}

/// With the cursor in the row. False in a grid of texts, and for a row that stays where it is.
bool FormEvents::MayShiftRows(Form& form, Control& control, int row) {
    if (control.grid->texts || RowStays(context_, form, *control.grid, row)) return false;
    return MoveFocus(form, control) && MoveGridCursor(form, control, row, control.grid->column) &&
           CommitCell(form, control);
}

bool FormEvents::InsertRow(Form& form, int row) {
    Control* control = FindGridWith(form, row, {});
    if (control == nullptr || !MayShiftRows(form, *control, row)) return control != nullptr;
    const auto moves = GridInsertRow(context_, form, row, control->grid->rows);
    if (!moves) {
        context_.calc.dialogs.ShowMessage(
            {.text = Translated("The last row of the table is filled. Delete a row first."),
             .title = Translated("Insert Row")});
        return true;
    }
    context_.act =
        Filled(Translated("insertion of %1 %2"), {Translated(form.type().rowName.one), std::to_string(row)});
    TellRowsMoved(form, *control->grid, *moves);
    NoteRowsWritten(form, *control, RowsFromTo(row, static_cast<int>(moves->size())));
    return true;
}

bool FormEvents::MoveRow(Form& form, int row, int step) {
    Control* control = FindGridWith(form, row, {});
    if (control == nullptr || FindGridWith(form, row + step, {}) == nullptr) return control != nullptr;
    if (RowStays(context_, form, *control->grid, row + step) || !MayShiftRows(form, *control, row))
        return true;
    const RowMoves moves = GridSwapRows(context_, form, row, row + step, control->grid->rows);
    TellRowsMoved(form, *control->grid, moves);
    context_.act =
        Filled(Translated("move of %1 %2"), {Translated(form.type().rowName.one), std::to_string(row)});
    NoteRowsWritten(form, *control, RowsFromTo(std::min(row, row + step), std::max(row, row + step)));
    MoveGridCursor(form, *control, row + step, control->grid->column);
    return true;
}

/// False if what was typed into the cell that is left was refused.
bool FormEvents::MoveGridCursor(Form& form, Control& control, int row, std::size_t column) {
    if (control.grid->row == row && control.grid->column == column) return true;
    if (!CommitCell(form, control)) return false;
    control.grid->column = column;
    if (std::exchange(control.grid->row, row) == row) return true;
    NoteCurrentCell(form);
    Handle(FormEvent::RowChanged, form, &control, [] {});
    return true;
}

/// Tells the calculations which row, and which second subscript, the user is working in.
void FormEvents::NoteCurrentCell(const Form& form) {
    const Control* control = form.FindGrid();
    context_.values.gridRow = control == nullptr || control->grid->texts ? 1 : control->grid->row;
    context_.values.dim2 = form.dim2().value_or(1);
}

/// Moves the cursor by a key. Tab and Enter go from one cell that takes a value to the next, and out of the
/// grid behind the last; the arrows reach every cell.
void FormEvents::StepCell(Form& form, Control& control, const std::string& key) {
    if (!CommitCell(form, control)) return;
    const GridData& grid = *control.grid;
    if (key == "Up" || key == "Down") {
        if (grid.rows == 0) return;
        const int row = std::clamp(grid.row + (key == "Up" ? -1 : 1), 1, grid.rows);
        MoveGridCursor(form, control, row, grid.column);
        return;
    }
    const int columns = static_cast<int>(grid.columns.size());
    const bool arrow = key == "Left" || key == "Right";
    const int step = key == "BackTab" || key == "Left" ? -1 : 1;
    const auto isIn = [&](int place) { return place >= 0 && place < columns * grid.rows; };
    const auto isLocked = [&](int place) {
        const GridColumn& column = grid.columns[static_cast<std::size_t>(place % columns)];
        return !GridTakesEdit(context_, form, place / columns + 1, column);
    };
    int place = (grid.row - 1) * columns + static_cast<int>(grid.column) + step;
    while (!arrow && isIn(place) && isLocked(place)) place += step;
    if (!isIn(place)) {
        if (!arrow) Tab(form, step > 0 ? TabStep::Next : TabStep::Previous);
    } else if (!arrow || place / columns + 1 == grid.row) {
        MoveGridCursor(form, control, place / columns + 1, static_cast<std::size_t>(place % columns));
    }
}

}  // namespace kelvor
