// Several cells of a grid at once.

#include <algorithm>
#include <utility>

#include "forms/act_name.h"
#include "forms/cell_block.h"
#include "forms/coded_list.h"
#include "forms/form_events.h"
#include "forms/grid_entry.h"
#include "forms/recalculation.h"
#include "platform/translation.h"

namespace kelvor {

namespace {

/// Why a row of a block was left out.
struct Refusal {
    int row = 0;
    std::string column;  // its caption
    Message reason;
};

/// What becomes of a block: the cells that are written, and the rows that are not.
struct BlockPlan {
    std::vector<CellEntry> cells;
    int rowsLeftOut = 0;
    std::optional<Refusal> first;  // of the rows that are left out

    void LeaveOut(Refusal refusal) {
        ++rowsLeftOut;
        if (!first) first = std::move(refusal);
    }
};

/// Plans what a block does to a grid from its cursor on.
class PastePlanner {
  public:
    PastePlanner(const ScreenContext& context, const Form& form, const GridData& grid)
        : context_(context), form_(form), grid_(grid) {}

    BlockPlan Plan(const std::vector<std::vector<std::string>>& lines) {
        int row = grid_.row;
        for (const std::vector<std::string>& line : lines) PlanRow(row++, line);
        return std::move(plan_);
    }

  private:
    void PlanRow(int row, const std::vector<std::string>& line) {
        if (row > grid_.rows) {
            const bool empty =
                std::all_of(line.begin(), line.end(), [](const auto& cell) { return cell.empty(); });
            if (!empty)
                plan_.LeaveOut(
                    {row, grid_.current().caption, {.text = Translated("The table has no such row.")}});
            return;
        }
        std::vector<CellEntry> cells;
        for (std::size_t i = 0; i < line.size() && grid_.column + i < grid_.columns.size(); ++i) {
            const GridColumn& column = grid_.columns[grid_.column + i];
            if (!GridTakesEdit(context_, form_, row, column)) continue;
            std::string text = GridEntry(context_, column, EntryOf(column, line[i]));
            if (auto refusal = GridRefusal(context_, column, text)) {
                plan_.LeaveOut({row, column.caption, *std::move(refusal)});
                return;
            }
            const bool same = text.empty() && GridReadCell(context_, form_, row, column).empty();
            if (!same) cells.push_back({row, grid_.column + i, std::move(text)});
        }
        std::stable_partition(cells.begin(), cells.end(),
                              [&](const CellEntry& cell) { return !grid_.columns[cell.column].writtenLast; });
        std::move(cells.begin(), cells.end(), std::back_inserter(plan_.cells));
    }

    /// A letter that stands for a word is that word.
    static std::string EntryOf(const GridColumn& column, const std::string& text) {
        std::string spelt;
        return column.words.empty() ? text : CompleteWord(column.words, {}, text, spelt).value_or(text);
    }

    const ScreenContext& context_;
    const Form& form_;
    const GridData& grid_;
    BlockPlan plan_;
};

/// Tells of all rows that were left out, and of the first where and why.
Message LeftOutMessage(const BlockPlan& plan) {
    const Refusal& first = *plan.first;
    const std::string where =
        Filled(Translated("row %1, %2: %3"), {std::to_string(first.row), first.column, first.reason.text});
    const std::string count = std::to_string(plan.rowsLeftOut);
    return {.text = plan.rowsLeftOut == 1
                        ? Filled(Translated("1 row was left out: %1"), {where})
                        : Filled(Translated("%1 rows were left out. The first is %2"), {count, where}),
            .title = Translated("Paste")};
}

std::vector<int> RowsOf(const std::vector<CellEntry>& cells) {
    std::vector<int> rows;
    for (const CellEntry& cell : cells) {
        if (rows.empty() || rows.back() != cell.row) rows.push_back(cell.row);
    }
    return rows;
}

bool IsIn(const GridData& grid, const CellRange& range) {
    return range.firstRow >= 1 && range.firstRow <= range.lastRow && range.lastRow <= grid.rows &&
           range.firstColumn <= range.lastColumn && range.lastColumn < grid.columns.size();
}

bool IsCursorIn(const GridData& grid, const CellRange& range) {
    return grid.row >= range.firstRow && grid.row <= range.lastRow && grid.column >= range.firstColumn &&
           grid.column <= range.lastColumn;
}

/// The cells of a block that can be edited and are not empty, to be emptied.
std::vector<CellEntry> FilledCells(const ScreenContext& context, const Form& form, const GridData& grid,
                                   const CellRange& range) {
    std::vector<CellEntry> cells;
    for (int row = range.firstRow; row <= range.lastRow; ++row) {
        for (std::size_t column = range.firstColumn; column <= range.lastColumn; ++column) {
            const GridColumn& at = grid.columns[column];
            if (!GridTakesEdit(context, form, row, at)) continue;
            if (!GridReadCell(context, form, row, at).empty()) cells.push_back({row, column, {}});
        }
    }
    return cells;
}

}  // namespace

bool FormEvents::PasteCells(Form& form, const std::string& block) {
    Control* control = form.FindGrid();
    if (control == nullptr || form.focus != control || !CommitCell(form, *control)) return control != nullptr;
    const std::vector<std::vector<std::string>> lines = SplitCells(block);
    const BlockPlan plan = PastePlanner(context_, form, *control->grid).Plan(lines);
    WriteCells(form, *control, plan.cells);
    if (plan.first) {
        const bool single = lines.size() == 1 && lines.front().size() == 1;
        context_.calc.dialogs.ShowMessage(single ? plan.first->reason : LeftOutMessage(plan));
    }
    const std::vector<int> rows = RowsOf(plan.cells);
    context_.act = PasteOf(rows.size(), form.type().rowName);
    NoteRowsWritten(form, *control, rows);
    return true;
}

bool FormEvents::EmptyCells(Form& form, const CellRange& range) {
    Control* control = form.FindGrid();
    if (control == nullptr || !IsIn(*control->grid, range)) return false;
    if (!MoveFocus(form, *control)) return true;
    if (IsCursorIn(*control->grid, range)) {
        control->grid->typed.reset();  // what was being typed goes with its cell
    } else if (!CommitCell(form, *control)) {
        return true;
    }
    const std::vector<CellEntry> cells = FilledCells(context_, form, *control->grid, range);
    WriteCells(form, *control, cells);
    context_.act = EmptyingOf(cells.size());
    GridAfterColUpdate(form);
    NoteRowsWritten(form, *control, RowsOf(cells));
    return true;
}

/// Stores texts that have been tested. While a screen hears of a cell, the cursor is on it; then it is back.
void FormEvents::WriteCells(Form& form, Control& control, const std::vector<CellEntry>& cells) {
    GridData& grid = *control.grid;
    const int row = grid.row;
    const std::size_t column = grid.column;
    for (const CellEntry& cell : cells) {
        if (cell.row > grid.rows) break;  // the screen has shortened its grid meanwhile
        grid.row = cell.row;
        grid.column = cell.column;
        NoteCurrentCell(form);
        GridWriteCell(context_, form, cell.row, grid.current(), cell.text);
        if (!grid.texts) context_.bProjectChanged = true;
        Handle(FormEvent::CellChanged, form, &control, [] {});
    }
    grid.row = std::clamp(row, 1, std::max(1, grid.rows));
    grid.column = column;
    NoteCurrentCell(form);
}

/// Once after the cells that one act has written: their rows are recalculated together.
void FormEvents::NoteRowsWritten(Form& form, Control& control, std::vector<int> rows) {
    if (rows.empty()) return;
    control.grid->writtenRows = std::move(rows);
    Handle(FormEvent::RowsWritten, form, &control, [&] {
        if (!control.grid->texts) RecalcRows(context_, form, control.grid->writtenRows);
    });
}

}  // namespace kelvor
