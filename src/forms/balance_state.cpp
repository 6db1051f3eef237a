#include "forms/balance_state.h"

#include <string>

#include "design/calc/solve_for.h"
#include "forms/field_entry.h"
#include "forms/indicator.h"
#include "forms/recalculation.h"
#include "platform/number_text.h"

namespace kelvor {

namespace {

constexpr double kTrue = -1.0;

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
        const bool warns = ShowsWarning(*indicator);
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
