#include "forms/grid_entry.h"

#include <algorithm>

#include "forms/field_entry.h"
#include "forms/form_builder.h"
#include "platform/database_error.h"
#include "platform/number_picture.h"
#include "platform/number_text.h"
#include "platform/translation.h"
#include "units/number_entry.h"

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
    if (column.routines.read != nullptr) return column.routines.read(context, form, row);
    return context.units.GetDisplayValue(column.variable, row, SecondSubscript(form));
}

std::string GridCellNote(const ScreenContext& context, const Form& form, int row, const GridColumn& column) {
    const Control* grid = form.FindGrid();
    if (grid == nullptr || grid->grid->routines.note == nullptr) return {};
    return grid->grid->routines.note(context, form, row, column);
}

bool GridTakesEdit(const ScreenContext& context, const Form& form, int row, const GridColumn& column) {
    if (column.locked) return false;
    const Control* grid = form.FindGrid();
    if (grid == nullptr || grid->grid->routines.mayEdit == nullptr) return true;
    return grid->grid->routines.mayEdit(context, form, row, column);
}

void GridWriteCell(ScreenContext& context, Form& form, int row, const GridColumn& column,
                   const std::string& text) {
    GridData& grid = *form.FindGrid()->grid;
    if (grid.texts) {
        (*grid.texts)[static_cast<std::size_t>(row - 1)][*grid.Find(column.variable)] = text;
        return;
    }
    const std::string* item = column.list.empty() ? nullptr : FindItem(column, text);
    const std::string& stored = item != nullptr ? *item : text;
    if (column.routines.write != nullptr) {
        column.routines.write(context, form, row, stored);
    } else {
        context.units.SetDisplayValue(column.variable, row, SecondSubscript(form), stored);
    }
}

void GridChange(ScreenContext& context, Form& form) {
    form.SetFieldChanged(true);
    if (!form.FindGrid()->grid->texts) context.bProjectChanged = true;
}

std::string EntryPreview(const ScreenContext& context, const Form& form) {
    if (!form.IsTyping()) return {};
    const Control& control = *form.focus;
    const std::string& variable = control.grid ? control.grid->current().variable : control.tag;
    const std::string& text = control.grid ? *control.grid->typed : control.text;
    const Variable* row = context.catalogue.FindVariable(variable);
    if (row == nullptr || row->IsText() || control.kind == ControlKind::ComboBox || IsNumeric(text))
        return {};
    const auto number = ReadNumberEntry(context.units, variable, text);
    if (!number) return {};
    const std::string unit = context.units.UnitLabel(variable);
    return "= " + *number + (IsNoUnit(unit) ? "" : " " + unit);
}

std::string GridEntry(const ScreenContext& context, const GridColumn& column, const std::string& text) {
    if (text.empty() || !column.list.empty() || IsTextPicture(column.picture) || IsNumeric(text)) return text;
    return ReadNumberEntry(context.units, column.variable, text).value_or(text);
}

std::optional<Message> GridRefusal(const ScreenContext& context, const GridColumn& column,
                                   const std::string& text) {
    if (text.empty()) return std::nullopt;
    if (!column.list.empty()) {
        if (FindItem(column, text) != nullptr) return std::nullopt;
        return Message{.text = "Please select item from the list", .title = "List"};
    }
    if (!IsTextPicture(column.picture) && !IsNumeric(text)) {
        return Message{.text = "Please enter valid numeric value.", .title = "Value"};
    }
    const Range range = context.units.VariableRange(column.variable);
    if (!IsOutOfRange(range, ParseNumber(text))) return std::nullopt;
    return Message{.text = OutOfRangeText(range)};
}

bool GridBeforeColUpdate(ScreenContext& context, Form& form, const GridColumn& column,
                         const std::string& text) {
    form.SetFieldChanged(false);
    const auto refusal = GridRefusal(context, column, text);
    if (refusal) context.calc.dialogs.ShowMessage(*refusal);
    return !refusal;
}

void GridAfterColUpdate(Form& form) { form.SetFieldChanged(false); }

void FillValueItems(ScreenContext& context, Form& form) {
    Control* control = form.FindGrid();
    form.metricItems = context.units.bMetric();
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
            {.text = Filled(Translated("The drop-down lists cannot be read: %1"), {failure.what()}),
             .title = "Error"});
    }
}

void BringItemsOver(ScreenContext& context, Form& form) {
    if (form.metricItems && *form.metricItems != context.units.bMetric()) FillValueItems(context, form);
}

}  // namespace kelvor
