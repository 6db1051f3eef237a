#include "forms/recalculation.h"

#include <set>
#include <string>
#include <utility>

#include "forms/field_hint.h"
#include "forms/form_builder.h"
#include "forms/indicator.h"
#include "platform/text.h"

namespace kelvor {

namespace {

std::string FieldText(const ScreenContext& context, const Form& form, const Control& box) {
    return context.units.GetDisplayValue(box.tag, form.dim1().value_or(1), form.dim2().value_or(1));
}

void RefreshColumns(const ScreenContext& context, GridData& grid) {
    for (GridColumn& column : grid.columns) {
        const std::string unit = context.units.UnitLabel(column.variable);
        column.unit = IsNoUnit(unit) ? "" : unit;
        column.hint = ColumnHint(context, column);
    }
}

void RefreshControl(const ScreenContext& context, const Form& form, Control& control) {
    if (control.grid && !control.grid->texts) RefreshColumns(context, *control.grid);
    if (control.IsField()) control.toolTip = FieldHint(context, control);
    if (control.kind == ControlKind::TextBox && !control.tag.empty()) {
        control.text = FieldText(context, form, control);
    } else if (control.kind == ControlKind::Label && control.tag.starts_with('u')) {
        control.text = IsNoUnit(control.text) ? "" : context.units.UnitLabel(control.tag.substr(1));
    } else if (!control.wordings.empty()) {
        control.text = control.wordings.at(context.units.bMetric() ? 1 : 0);
    }
}

/// A calculation that works on the current row sees the row that is recalculated. A form that shows one slice
/// leaves the others as they are.
void RecalcColumn(ScreenContext& context, const Form& form, const Field& output, const Variable& variable,
                  int row) {
    const int current = std::exchange(context.values.gridRow, row);
    for (int dim2 = 1; dim2 <= variable.dim2; ++dim2) {
        if (const auto slice = output.dim2 ? output.dim2 : form.dim2(); slice && *slice != dim2) continue;
        context.calculations.CalcCell(context.calc, output.name, row, dim2, output.equation);
    }
    context.values.gridRow = current;
}

/// Recalculates the computed columns of a screen, each in the rows that are wanted of it.
template <typename Wanted>
void RecalcColumns(ScreenContext& context, const Form& form, Wanted isWanted) {
    for (const Field* output : context.catalogue.OutputsOfScreen(form.tag)) {
        const Variable* variable = context.catalogue.FindVariable(output->name);
        if (!output->IsColumn() || variable == nullptr) continue;
        for (int row = 1; row <= variable->dim1; ++row) {
            if (isWanted(*output, row)) RecalcColumn(context, form, *output, *variable, row);
        }
    }
}

/// The cell of a column in a row, of the slice that the form shows; null if there is none.
const CellValue* FindColumnCell(const ScreenContext& context, const Form& form, const Field& column,
                                int row) {
    const int dim2 = column.dim2.value_or(form.dim2().value_or(1));
    return context.calc.store.FindCell(column.name, row, dim2);
}

/// The rows of a screen's grid in which a cell is filled.
std::set<int> FilledRows(const ScreenContext& context, const Form& form) {
    std::set<int> rows;
    for (const Field* field : context.catalogue.FieldsOfScreen(form.tag)) {
        const Variable* variable = context.catalogue.FindVariable(field->name);
        if (!field->IsColumn() || variable == nullptr) continue;
        for (int row = 1; row <= variable->dim1; ++row) {
            const CellValue* cell = FindColumnCell(context, form, *field, row);
            if (cell != nullptr && cell->IsFilled()) rows.insert(row);
        }
    }
    return rows;
}

void RecalcOutputsOf(ScreenContext& context, const Form& form, std::string_view changedName,
                     std::span<const int> rows) {
    for (const Field* output : context.catalogue.OutputsOfScreen(form.tag)) {
        const Variable* variable = context.catalogue.FindVariable(output->name);
        if (output->IsGrid() || variable == nullptr) continue;
        if (output->IsColumn()) {
            for (const int row : rows) {
                if (row >= 1 && row <= variable->dim1) RecalcColumn(context, form, *output, *variable, row);
            }
        } else if (!EqualNoCase(output->name, changedName)) {
            context.calculations.CalcField(context.calc, output->name, output->equation);
        }
    }
}

}  // namespace

void RefreshScreen(ScreenContext& context, Form& form) {
    for (const auto& control : form.controls()) RefreshControl(context, form, *control);
    form.SetFieldChanged(false);
    ShowSolved(context, form);
}

void RecalcOutputs(ScreenContext& context, Form& form, std::string_view changedName, int row) {
    RecalcOutputsOf(context, form, changedName, {&row, 1});
    RefreshScreen(context, form);
}

void RecalcRows(ScreenContext& context, Form& form, std::span<const int> rows) {
    RecalcOutputsOf(context, form, "", rows);
    RefreshScreen(context, form);
}

void RecalcAllOutputs(ScreenContext& context, Form& form) {
    RecalcColumns(context, form, [&](const Field& output, int row) {
        const CellValue* cell = FindColumnCell(context, form, output, row);
        return cell != nullptr && cell->number.has_value();
    });
    RefreshScreen(context, form);
}

void RecalcFilledRows(ScreenContext& context, Form& form) {
    const std::set<int> rows = FilledRows(context, form);
    RecalcColumns(context, form, [&](const Field& /*output*/, int row) { return rows.contains(row); });
    RefreshScreen(context, form);
}

}  // namespace kelvor
