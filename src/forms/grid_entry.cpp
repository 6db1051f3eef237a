#include "forms/grid_entry.h"

#include <algorithm>

#include "forms/field_entry.h"
#include "platform/database_error.h"
#include "platform/number_picture.h"
#include "platform/number_text.h"

namespace kelvor {

namespace {

int SecondSubscript(const Form& form) { return form.dim2().value_or(1); }

/// The entry of a list that a text names, without regard to case; null if there is none.
const std::string* FindItem(const GridColumn& column, const std::string& text) {
    const auto found = std::find_if(column.items.begin(), column.items.end(),
                                    [&](const std::string& item) { return EqualNoCase(item, text); });
    return found == column.items.end() ? nullptr : &*found;
}

/// The text of a cell of a form's grid that has texts of its own; null if it has none, or no such row.
const std::string* OwnText(const Form& form, int row, const GridColumn& column) {
    const Control* grid = form.FindGrid();
    if (grid == nullptr || !grid->grid->texts || row < 1 || row > grid->grid->rows) return nullptr;
    const auto place = grid->grid->Find(column.variable);
    return place ? &(*grid->grid->texts)[static_cast<std::size_t>(row - 1)][*place] : nullptr;
}

}  // namespace

std::string GridReadCell(const ScreenContext& context, const Form& form, int row, const GridColumn& column) {
    if (const std::string* text = OwnText(form, row, column)) return *text;
    return context.units.GetDisplayValue(column.variable, row, SecondSubscript(form));
}

void GridWriteCell(ScreenContext& context, Form& form, int row, const GridColumn& column,
                   const std::string& text) {
    GridData& grid = *form.FindGrid()->grid;
    if (grid.texts) {
        (*grid.texts)[static_cast<std::size_t>(row - 1)][*grid.Find(column.variable)] = text;
        return;
    }
    const std::string* item = column.list.empty() ? nullptr : FindItem(column, text);
    context.units.SetDisplayValue(column.variable, row, SecondSubscript(form),
                                  item != nullptr ? *item : text);
}

void GridChange(ScreenContext& context, Form& form) {
    form.SetFieldChanged(true);
    if (!form.FindGrid()->grid->texts) context.bProjectChanged = true;
}

bool GridBeforeColUpdate(ScreenContext& context, Form& form, const GridColumn& column,
                         const std::string& text) {
    form.SetFieldChanged(false);
    if (text.empty()) return true;
    if (!column.list.empty()) {
        if (FindItem(column, text) != nullptr) return true;
        context.calc.dialogs.ShowMessage({.text = "Please select item from the list", .title = "List"});
        return false;
    }
    if (!IsTextPicture(column.picture) && !IsNumeric(text)) {
        context.calc.dialogs.ShowMessage({.text = "Please enter valid numeric value.", .title = "Value"});
        return false;
    }
    const Range range = context.units.VariableRange(column.variable);
    if (!IsOutOfRange(range, ParseNumber(text))) return true;
    context.calc.dialogs.ShowMessage({.text = OutOfRangeText(range)});
    return false;
}

void GridAfterColUpdate(Form& form) { form.SetFieldChanged(false); }

bool GridDeleteRow(ScreenContext& context, Form& form, const GridData& grid, int row) {
    const Answer answer = context.calc.dialogs.ShowMessage(
        {.text = "Do you want to delete this row?", .title = "Delete", .style = MessageStyle::YesNo});
    if (answer != Answer::Yes) return false;
    context.bProjectChanged = true;
    for (const Field* field : context.catalogue.FieldsOfScreen(form.tag)) {
        if (!field->IsColumn()) continue;
        const int dim2 = field->dim2.value_or(SecondSubscript(form));
        context.units.SetDisplayValue(field->name, row, dim2, "");
        CompactColumn(context.calc.store, field->name, grid.rows, dim2);
    }
    return true;
}

void CompactColumn(ProjectStore& store, const std::string& name, int rows, int dim2) {
    if (name.empty()) return;
    int source = 0;  // the last row that was looked at for a value
    for (int row = 1; row <= rows && store.FindCell(name, row, dim2) != nullptr; ++row) {
        CellValue value;
        while (source < rows && !value.IsFilled()) {
            if (const CellValue* cell = store.FindCell(name, ++source, dim2)) value = *cell;
        }
        store.SetCell(name, row, dim2, value);
    }
}

void FillValueItems(ScreenContext& context, Form& form) {
    Control* control = form.FindGrid();
    if (control == nullptr) return;
    for (GridColumn& column : control->grid->columns) {
        if (!column.list.empty()) column.items.clear();
    }
    try {
        for (GridColumn& column : control->grid->columns) {
            if (!column.list.empty())
                column.items = context.lists.Values(column.list, context.units.bMetric());
        }
    } catch (const DatabaseError& failure) {
        // The screen serves without what it would offer.
        context.calc.dialogs.ShowMessage(
            {.text = std::string("The drop-down lists cannot be read: ") + failure.what(), .title = "Error"});
    }
}

}  // namespace kelvor
