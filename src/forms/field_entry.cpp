#include "forms/field_entry.h"

#include <algorithm>
#include <array>
#include <utility>

#include "forms/act_name.h"
#include "forms/coded_list.h"
#include "forms/indicator.h"
#include "forms/recalculation.h"
#include "platform/number_text.h"
#include "units/number_entry.h"

namespace kelvor {

namespace {

/// Existing thicknesses, to which the advice for new concrete does not apply.
constexpr std::array<std::string_view, 2> kExistingThicknesses = {"ACACPCACT", "EXISTDEPTH"};

constexpr double kThinnestConcrete = 4.0;  // inches, recommended
constexpr double kLimitOfConcrete = 20.0;  // limits of 0 and 20 tell a concrete thickness

template <std::size_t Count>
bool Contains(const std::array<std::string_view, Count>& names, std::string_view name) {
    return std::any_of(names.begin(), names.end(), [&](std::string_view n) { return EqualNoCase(n, name); });
}

std::string LimitText(const std::optional<double>& limit) { return limit ? NumberToText(*limit) : ""; }

/// True for a box that takes what is no number.
bool TakesText(const ScreenContext& context, const Control& control) {
    if (control.kind == ControlKind::ComboBox) return true;
    const Variable* variable = context.catalogue.FindVariable(control.tag);
    return variable != nullptr && variable->IsText();
}

/// False for a text that a list which takes nothing but its items does not offer.
bool IsOffered(const Control& control) {
    if (!control.onlyItems || control.text.empty()) return true;
    return std::find(control.items.begin(), control.items.end(), control.text) != control.items.end();
}

/// Puts a plain number in the place of a multiple, a fraction, a sum or a value with its unit.
void TakeEntry(const ScreenContext& context, Control& control) {
    if (control.text.empty() || IsNumeric(control.text) || TakesText(context, control)) return;
    if (auto number = ReadNumberEntry(context.units, control.tag, control.text))
        control.text = std::move(*number);
}

/// Empties the box of a refused value.
Leaving Refuse(Form& form, Control& control) {
    control.text.clear();
    form.SetFieldChanged(false);
    return Leaving::Refused;
}

/// Stores nothing at the field's cell. True if something was there.
bool EmptyCell(ScreenContext& context, const Form& form, const Control& control) {
    ProjectStore& store = context.calc.store;
    const int dim1 = form.dim1().value_or(1);
    const int dim2 = form.dim2().value_or(1);
    const CellValue* cell = store.FindCell(control.tag, dim1, dim2);
    const bool filled = cell != nullptr && cell->IsFilled();
    store.SetCell(control.tag, dim1, dim2, {});
    return filled;
}

void AdviseOnConcrete(ScreenContext& context, const Control& control, const Range& range, double value) {
    const bool isConcrete = range.high == kLimitOfConcrete && range.low == 0.0;
    if (!isConcrete || value >= kThinnestConcrete || Contains(kExistingThicknesses, control.name)) return;
    context.calc.dialogs.ShowMessage(
        {.text = "The AASHTO recommended minimum thickness for concrete is 4 inches (100mm)",
         .title = "AASHTO recommendation"});
}

/// True if a changed value may be stored; else its message was shown.
bool PassesRange(ScreenContext& context, const Control& control) {
    if (control.kind == ControlKind::ComboBox || control.text.empty()) return true;
    const Range range = context.units.VariableRange(control.tag);
    const double value = ParseNumber(control.text);
    if (IsOutOfRange(range, value)) {
        context.calc.dialogs.ShowMessage({.text = OutOfRangeText(range)});
        return false;
    }
    AdviseOnConcrete(context, control, range, value);
    return true;
}

/// A field whose SolveFor is this or less is a term of the screen's equation: a change unbalances the screen.
constexpr double kInEquation = 1.0;

bool IsInEquation(const ScreenContext& context, const Form& form, const Control& control) {
    const auto fields = context.catalogue.FieldsOfScreen(form.tag);
    return std::any_of(fields.begin(), fields.end(), [&](const Field* field) {
        return EqualNoCase(field->name, control.tag) && field->solveFor && *field->solveFor <= kInEquation;
    });
}

/// A changed value is stored: what follows from it is worked out, and the indicator warns.
void FollowChange(ScreenContext& context, Form& form, const Control& control) {
    RecalcOutputs(context, form, control.tag, 0);
    if (IsInEquation(context, form, control)) WarnOfChange(context, form, control.tag);
}

/// A text that is no number empties its cell, which is a change like any other.
Leaving RefuseText(ScreenContext& context, Form& form, Control& control) {
    context.calc.dialogs.ShowMessage({.text = "Please enter valid numeric value.", .title = "Value"});
    if (form.fieldChanged()) context.bProjectChanged = true;
    const bool emptied = EmptyCell(context, form, control);
    context.act = ChangeOf(context, control.tag);
    Refuse(form, control);
    if (!emptied) return Leaving::Refused;
    FollowChange(context, form, control);
    return Leaving::Emptied;
}

void StoreField(ScreenContext& context, Form& form, Control& control) {
    if (control.text.empty()) {
        EmptyCell(context, form, control);
    } else if (control.coded) {
        StoreCode(context, form, control);
    } else {
        context.units.SetDisplayValue(control.tag, form.dim1().value_or(1), form.dim2().value_or(1),
                                      control.text);
    }
    context.act = ChangeOf(context, control.tag);
    FollowChange(context, form, control);
}

}  // namespace

bool IsOutOfRange(const Range& range, double value) {
    return (range.low && value < *range.low) || (range.high && value > *range.high);
}

std::string OutOfRangeText(const Range& range) {
    return "Warning: Input out of range. Enter value between " + LimitText(range.low) + " and " +
           LimitText(range.high);
}

void FieldChange(Form& form, Control& control) {
    form.SetFieldChanged(true);
    form.SetText("SolveForField", control.tag);
}

void FieldGotFocus(Form& form, Control& control) {
    form.SetFieldChanged(false);
    form.SetText("SolveForField", control.tag);
    FindControlIndex(form, control.name);
    form.spelt.clear();
    SelectAll(form);
}

void SelectAll(Form& form) {
    form.caret.reset();
    ++form.selections;
}

void FindControlIndex(Form& form, std::string_view controlName) {
    if (const auto index = form.IndexOf(controlName)) form.iCurrentField = index;
}

Leaving FieldLostFocus(ScreenContext& context, Form& form, Control& control) {
    if (form.fieldChanged() && !IsOffered(control)) {
        context.calc.dialogs.ShowMessage({.text = "Please select item from the list", .title = "List"});
        Refuse(form, control);
        // The list is left blank, and with it the code.
        if (control.coded) form.SetFieldChanged(true);
        return Leaving::Refused;
    }
    if (form.fieldChanged()) TakeEntry(context, control);
    if (!control.text.empty() && !IsNumeric(control.text) && !TakesText(context, control)) {
        return RefuseText(context, form, control);
    }
    if (form.fieldChanged()) {
        form.SetFieldChanged(false);
        context.bProjectChanged = true;  // also by a value that is refused now: its box stays empty
        if (!PassesRange(context, control)) return Refuse(form, control);
        StoreField(context, form, control);
    }
    form.SetText("SolveForField", control.tag);
    return Leaving::Accepted;
}

void ShowStoredValue(const ScreenContext& context, const Form& form, Control& control) {
    const int dim1 = form.dim1().value_or(1);
    const int dim2 = form.dim2().value_or(1);
    if (control.coded) {
        const CellValue* cell = context.calc.store.FindCell(control.tag, dim1, dim2);
        control.text = WordOf(control.words, cell == nullptr ? std::nullopt : cell->number);
    } else {
        control.text = context.units.GetDisplayValue(control.tag, dim1, dim2);
    }
}

void StoreCode(ScreenContext& context, const Form& form, const Control& list) {
    context.units.SetDisplayNumber(list.tag, form.dim1().value_or(1), form.dim2().value_or(1),
                                   CodeOf(list.words, list.text).value_or(0));
}

void RestoreField(ScreenContext& context, Form& form, Control& control) {
    SelectAll(form);
    if (!form.fieldChanged()) return;
    ShowStoredValue(context, form, control);
    form.SetFieldChanged(false);
}

double FieldNumber(const ScreenContext& context, const Form& form, const Control& box) {
    if (box.text.empty()) return 0.0;
    const bool typing = form.focus == &box && form.fieldChanged();
    const Variable* variable = context.catalogue.FindVariable(box.tag);
    const CellValue* cell =
        context.calc.store.FindCell(box.tag, form.dim1().value_or(1), form.dim2().value_or(1));
    if (typing || variable == nullptr || cell == nullptr || !cell->number) return ParseNumber(box.text);
    return *cell->number * context.units.UnitFactor(variable->units);
}

}  // namespace kelvor
