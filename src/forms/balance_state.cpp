#include "forms/balance_state.h"

#include <algorithm>
#include <array>
#include <set>

#include "design/calc/equation_screens.h"
#include "design/calc/solve_for.h"
#include "forms/field_entry.h"
#include "forms/field_hint.h"
#include "forms/form_builder.h"
#include "platform/number_picture.h"
#include "platform/number_text.h"

namespace kelvor {

namespace {

const char* const kAtRest = "\r\nPress Solve For\r\n";
const char* const kWarning = "WARNING!\r\nInput Value Changed\r\nPress Solve For to Recalculate";

/// The caption with which ShowSolved compares. It has no blank, unlike the resting one, so they never match.
const char* const kAtRestWithoutBlank = "\r\nPress SolveFor\r\n";

/// A caption that begins with these letters counts as a warning.
constexpr std::string_view kWarningStart = "WARNING!";

constexpr double kTrue = -1.0;

Control* IndicatorLabel(Form& form, Indicator which) {
    return form.Find(which == Indicator::First ? "SolveFor" : "SolveFor2");
}

/// Unit texts that would only repeat what the label says. These are not quite the ones that no unit label
/// shows: an indicator says "80kN ESAL's".
bool IsShownAsUnit(const std::string& unit) {
    constexpr std::array<std::string_view, 3> kNotShown = {"No Units", "ESN", "MSN"};
    if (std::find(kNotShown.begin(), kNotShown.end(), unit) != kNotShown.end()) return false;
    return !(Like(unit, "18 kip*") || Like(unit, "80 kN*"));
}

/// The catalogue's row of a form's field; null if the field is none of the screen's.
const Field* FindScreenField(const ScreenContext& context, const Form& form, std::string_view variable) {
    const auto fields = context.catalogue.FieldsOfScreen(form.tag);
    const auto found = std::find_if(fields.begin(), fields.end(),
                                    [&](const Field* f) { return EqualNoCase(f->name, variable); });
    return found == fields.end() ? nullptr : *found;
}

/// The field of the form that had the focus last; null if there was none.
Control* CurrentField(Form& form) {
    return form.iCurrentField ? form.controls()[*form.iCurrentField].get() : nullptr;
}

/// The indicator of the equation that a field stands in: a screen with two has the second one on its far
/// half.
Indicator IndicatorOf(const Form& form, const Field& field) {
    const EquationScreen* equation = FindEquation(form.tag, field.seq.value_or(0));
    return equation == nullptr || equation->firstTerm == 1 ? Indicator::First : Indicator::Second;
}

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
    }
}

/// The value of a solved field held within its limits; stored again if it was not.
void ClampToRange(ScreenContext& context, const std::string& variable) {
    const double value = ParseNumber(context.units.GetDisplayValue(variable));
    const Range range = context.units.VariableRange(variable);
    if (range.high && value > *range.high) {
        context.units.SetDisplayNumber(variable, 1, 1, *range.high);
    } else if (range.low && value < *range.low) {
        context.units.SetDisplayNumber(variable, 1, 1, *range.low);
    }
}

void ShowSolvedField(const ScreenContext& context, Form& form, const Field& field) {
    const Variable* variable = context.catalogue.FindVariable(field.name);
    const Indicator which = IndicatorOf(form, field);
    form.solvedFor[static_cast<std::size_t>(which)] = field.name;
    SetSolveForState(form, SolveState::Solved, variable->desc, context.units.GetDisplayValue(field.name),
                     context.units.UnitLabel(field.name), which);
}

/// The field of the last focus, if the indicator of its equation may show it; else null.
const Field* FieldToShow(const ScreenContext& context, Form& form) {
    const Control* current = CurrentField(form);
    if (current == nullptr) return nullptr;
    const Field* field = FindScreenField(context, form, current->name);
    if (field == nullptr || !field->solveFor) return nullptr;
    const Indicator which = IndicatorOf(form, *field);
    const Control* indicator = IndicatorLabel(form, which);
    const bool warns = form.solveState[static_cast<std::size_t>(which)] == SolveState::Warning;
    if (indicator == nullptr || warns || indicator->text == kAtRestWithoutBlank) return nullptr;
    return ParseNumber(context.units.GetDisplayValue(field->name)) == 0.0 ? nullptr : field;
}

void RecalcColumn(ScreenContext& context, const Field& output, const Variable& variable, int row) {
    for (int dim2 = 1; dim2 <= variable.dim2; ++dim2) {
        if (output.dim2 && *output.dim2 != dim2) continue;
        context.calculations.CalcCell(context.calc, output.name, row, dim2, output.equation);
    }
}

/// A form that showed a warning keeps it: only a solve clears it. Otherwise its flag tells.
void LoadBalance(const ScreenContext& context, Form& form, BalanceFlag flag, Indicator which,
                 SolveState before) {
    const bool warns = before == SolveState::Warning || !context.balance.Get(flag);
    SetSolveForState(form, warns ? SolveState::Warning : SolveState::Resting, {}, {}, {}, which);
}

/// What an indicator shows, to be put back.
struct IndicatorLook {
    SolveState state = SolveState::Resting;
    Control control;
};

/// Solves for a field that can be solved for, and shows what came of it on the indicator of its equation.
void SolveForField(ScreenContext& context, Form& form, const Field& field) {
    const auto which = static_cast<std::size_t>(IndicatorOf(form, field));
    Control& indicator = *IndicatorLabel(form, IndicatorOf(form, field));
    const IndicatorLook before{form.solveState[which], indicator};
    form.SetHiddenText("SolveForSide", std::to_string(which + 1));
    const int result = SolveForVariable(context.calc, form.tag, field.seq.value_or(0));
    RefreshScreen(context, form);
    if (result != 0) {
        form.solveState[which] = before.state;
        indicator = before.control;
        return;
    }
    ClampToRange(context, field.name);
    context.bProjectChanged = true;
    ShowSolvedField(context, form, field);
    RecalcOutputs(context, form, "", 0);
    const auto flag = which == 0 ? form.type().balance : form.type().secondBalance;
    if (flag) context.balance.Set(*flag, true);
}

}  // namespace

void SetSolveForState(Form& form, SolveState state, const std::string& label, const std::string& value,
                      const std::string& unit, Indicator which) {
    Control* indicator = IndicatorLabel(form, which);
    if (indicator == nullptr || !indicator->visible) return;
    form.solveState[static_cast<std::size_t>(which)] = state;
    const bool warns = state == SolveState::Warning;
    indicator->backColor = warns ? colours::kLightRed : colours::kResting;
    indicator->foreColor = warns ? colours::kBrightWhite : colours::kBlack;
    indicator->bold = state == SolveState::Solved;
    switch (state) {
        case SolveState::Resting:
            indicator->text = kAtRest;
            break;
        case SolveState::Warning:
            indicator->text = kWarning;
            break;
        case SolveState::Solved:
            indicator->text = label + "\r\n" + value + " " + (IsShownAsUnit(unit) ? unit : "");
            break;
    }
}

void ShowSolved(ScreenContext& context, Form& form) {
    const Field* shown = FieldToShow(context, form);
    if (shown != nullptr) ShowSolvedField(context, form, *shown);
    // The other half of a screen keeps what it shows, in the units of now.
    for (const Indicator which : {Indicator::First, Indicator::Second}) {
        const auto place = static_cast<std::size_t>(which);
        if (form.solveState[place] != SolveState::Solved) continue;
        const Field* field = FindScreenField(context, form, form.solvedFor[place]);
        if (field != nullptr && field != shown) ShowSolvedField(context, form, *field);
    }
}

void WarnOfChange(const ScreenContext& context, Form& form, const std::string& variable) {
    const Field* field = FindScreenField(context, form, variable);
    SetSolveForState(form, SolveState::Warning, {}, {}, {},
                     field == nullptr ? Indicator::First : IndicatorOf(form, *field));
}

void RefreshScreen(ScreenContext& context, Form& form) {
    for (const auto& control : form.controls()) RefreshControl(context, form, *control);
    form.SetFieldChanged(false);
    ShowSolved(context, form);
}

void RecalcOutputs(ScreenContext& context, Form& form, std::string_view changedName, int row) {
    for (const Field* output : context.catalogue.OutputsOfScreen(form.tag)) {
        const Variable* variable = context.catalogue.FindVariable(output->name);
        if (output->IsGrid() || variable == nullptr) continue;
        if (output->IsColumn()) {
            if (row >= 1 && row <= variable->dim1) RecalcColumn(context, *output, *variable, row);
        } else if (!EqualNoCase(output->name, changedName)) {
            context.calculations.CalcField(context.calc, output->name, output->equation);
        }
    }
    RefreshScreen(context, form);
}

void RecalcAllOutputs(ScreenContext& context, Form& form) {
    for (const Field* output : context.catalogue.OutputsOfScreen(form.tag)) {
        const Variable* variable = context.catalogue.FindVariable(output->name);
        if (!output->IsColumn() || variable == nullptr) continue;
        for (int row = 1; row <= variable->dim1; ++row) {
            const CellValue* cell = context.calc.store.FindCell(output->name, row, output->dim2.value_or(1));
            if (cell != nullptr && cell->number) RecalcColumn(context, *output, *variable, row);
        }
    }
    RefreshScreen(context, form);
}

void RecalcFilledRows(ScreenContext& context, Form& form) {
    std::set<int> rows;
    for (const Field* field : context.catalogue.FieldsOfScreen(form.tag)) {
        const Variable* variable = context.catalogue.FindVariable(field->name);
        if (!field->IsColumn() || variable == nullptr) continue;
        for (int row = 1; row <= variable->dim1; ++row) {
            const CellValue* cell = context.calc.store.FindCell(field->name, row, field->dim2.value_or(1));
            if (cell != nullptr && cell->IsFilled()) rows.insert(row);
        }
    }
    for (const Field* output : context.catalogue.OutputsOfScreen(form.tag)) {
        const Variable* variable = context.catalogue.FindVariable(output->name);
        if (!output->IsColumn() || variable == nullptr) continue;
        for (const int row : rows) RecalcColumn(context, *output, *variable, row);
    }
    RefreshScreen(context, form);
}

void SolveForClick(ScreenContext& context, Form& form) {
    Control* current = CurrentField(form);
    if (current == nullptr) return;
    Dialogs& dialogs = context.calc.dialogs;
    dialogs.SetWaitCursor(true);
    const Field* field = FindScreenField(context, form, current->name);
    if (field != nullptr && field->solveFor) {
        SolveForField(context, form, *field);
    } else {
        const Variable* variable = context.catalogue.FindVariable(current->name);
        dialogs.ShowMessage({.text = "Cannot solve for: " + (variable == nullptr ? "" : variable->desc)});
        form.SetFieldChanged(false);
    }
    dialogs.SetWaitCursor(false);
    form.focus = current;
    FieldGotFocus(form, *current);
}

void InitScreen(ScreenContext& context, Form& form) {
    if (context.catalogue.FindScreen(form.tag) == nullptr) {
        context.calc.dialogs.ShowMessage({.text = "Screen " + form.tag + " not found"});
    }
    context.calc.store.SetVar("FieldChanged", 0.0);
    SetSolveForState(form, SolveState::Resting, {}, {}, {}, Indicator::First);
    SetSolveForState(form, SolveState::Resting, {}, {}, {}, Indicator::Second);
}

void LoadScreen(ScreenContext& context, Form& form) {
    context.forms.CurrentForm = &form;
    if (!context.calc.store.IsOpen()) return;
    const auto before = form.solveState;
    RefreshScreen(context, form);
    if (context.calc.store.GetVar("FieldChanged") == kTrue) SetSolveForState(form, SolveState::Warning);
    const FormType& type = form.type();
    if (type.balance) LoadBalance(context, form, *type.balance, Indicator::First, before[0]);
    if (type.secondBalance) LoadBalance(context, form, *type.secondBalance, Indicator::Second, before[1]);
}

bool ConfirmScreenClose(ScreenContext& context, Form& form) {
    bool warned = false;
    for (const Indicator which : {Indicator::First, Indicator::Second}) {
        const auto flag = which == Indicator::First ? form.type().balance : form.type().secondBalance;
        const Control* indicator = IndicatorLabel(form, which);
        if (!flag || indicator == nullptr) continue;
        const bool warns = indicator->text.starts_with(kWarningStart);
        context.balance.Set(*flag, !warns);
        warned = warned || warns;
    }
    if (!warned) return true;
    const Answer answer = context.calc.dialogs.ShowMessage(
        {.text = "The values for this input form were not balanced\n\tDo you want to continue?",
         .title = "Not Solved",
         .style = MessageStyle::YesNo});
    return answer == Answer::Yes;
}

}  // namespace kelvor
