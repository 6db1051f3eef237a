#include "forms/grid_rows.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace kelvor {

namespace {

/// The columns of a form's grid, also those that it does not show; with the computed ones or without.
std::vector<ColumnCells> ColumnsOf(const ScreenContext& context, const Form& form, bool withOutputs = true) {
    std::vector<ColumnCells> columns;
    for (const Field* field : context.catalogue.FieldsOfScreen(form.tag)) {
        if (field->IsColumn() && !field->name.empty() && (withOutputs || !field->IsOutput())) {
            columns.push_back({field->name, field->dim2.value_or(form.dim2().value_or(1))});
        }
    }
    return columns;
}

/// The rows that the variables have, which may be more than the grid shows.
int RowsOf(const ScreenContext& context, const std::vector<ColumnCells>& columns) {
    int rows = 0;
    for (const ColumnCells& column : columns) {
        const Variable* variable = context.catalogue.FindVariable(column.variable);
        if (variable != nullptr) rows = std::max(rows, variable->dim1);
    }
    return rows;
}

bool IsRowFilled(const ProjectStore& store, const std::vector<ColumnCells>& columns, int row) {
    return std::any_of(columns.begin(), columns.end(), [&](const ColumnCells& column) {
        const CellValue* cell = store.FindCell(column.variable, row, column.dim2);
        return cell != nullptr && cell->IsFilled();
    });
}

void EmptyRow(ProjectStore& store, const std::vector<ColumnCells>& columns, int row) {
    for (const ColumnCells& column : columns) store.SetCell(column.variable, row, column.dim2, {});
}

void MoveRow(ProjectStore& store, const std::vector<ColumnCells>& columns, int from, int to) {
    for (const ColumnCells& column : columns) {
        const CellValue* cell = store.FindCell(column.variable, from, column.dim2);
        const CellValue value = cell != nullptr ? *cell : CellValue{};
        store.SetCell(column.variable, to, column.dim2, value);
    }
    EmptyRow(store, columns, from);
}

/// So many rows that all stand where they stood.
RowMoves Unmoved(int rows) {
    RowMoves moves(static_cast<std::size_t>(rows));
    std::iota(moves.begin(), moves.end(), 1);
    return moves;
}

}  // namespace

std::optional<RowMoves> GridDeleteRow(ScreenContext& context, Form& form, int row) {
    const Answer answer = context.calc.dialogs.ShowMessage(
        {.text = "Do you want to delete this row?", .title = "Delete", .style = MessageStyle::YesNo});
    if (answer != Answer::Yes) return std::nullopt;
    context.bProjectChanged = true;
    const std::vector<ColumnCells> columns = ColumnsOf(context, form);
    EmptyRow(context.calc.store, columns, row);
    return CompactRows(context.calc.store, columns, RowsOf(context, columns));
}

std::optional<RowMoves> GridInsertRow(ScreenContext& context, const Form& form, int row, int rows) {
    ProjectStore& store = context.calc.store;
    const std::vector<ColumnCells> inputs = ColumnsOf(context, form, false);
    int last = rows;
    while (last >= row && !IsRowFilled(store, inputs, last)) --last;
    if (last == rows) return std::nullopt;
    context.bProjectChanged = true;
    const std::vector<ColumnCells> columns = ColumnsOf(context, form);
    for (int from = last; from >= row; --from) MoveRow(store, columns, from, from + 1);
    RowMoves moves = Unmoved(std::max(row, last + 1));
    for (int from = row; from <= last; ++from) moves[static_cast<std::size_t>(from - 1)] = from + 1;
    return moves;
}

RowMoves GridSwapRows(ScreenContext& context, const Form& form, int row, int other, int rows) {
    ProjectStore& store = context.calc.store;
    context.bProjectChanged = true;
    for (const ColumnCells& column : ColumnsOf(context, form)) {
        const CellValue* cell = store.FindCell(column.variable, row, column.dim2);
        const CellValue* otherCell = store.FindCell(column.variable, other, column.dim2);
        if (cell == nullptr || otherCell == nullptr) continue;
        const CellValue value = *cell;
        store.SetCell(column.variable, row, column.dim2, CellValue(*otherCell));
        store.SetCell(column.variable, other, column.dim2, value);
    }
    RowMoves moves = Unmoved(rows);
    std::swap(moves[static_cast<std::size_t>(row - 1)], moves[static_cast<std::size_t>(other - 1)]);
    return moves;
}

RowMoves CompactRows(ProjectStore& store, const std::vector<ColumnCells>& columns, int rows) {
    RowMoves moves(static_cast<std::size_t>(rows), 0);
    int next = 1;
    for (int row = 1; row <= rows; ++row) {
        if (!IsRowFilled(store, columns, row)) continue;
        if (row != next) MoveRow(store, columns, row, next);
        moves[static_cast<std::size_t>(row - 1)] = next++;
    }
    return moves;
}

}  // namespace kelvor
