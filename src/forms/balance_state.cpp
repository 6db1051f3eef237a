#include "forms/balance_state.h"

#include <string>

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
void LoadBalance(const ScreenContext& context, Form& form, std::size_t equation, SolveState before) {
    const auto flag = form.type().equations[equation].flag;
    if (!flag) return;
    const bool warns = before == SolveState::Warning || !context.balance.Get(*flag);
    SetSolveForState(form, warns ? SolveState::Warning : SolveState::Resting, equation);
}

/// What a box shows, as a number.
double ShownNumber(Form& form, std::string_view variable) {
    const Control* box = form.FindField(variable);
    return box == nullptr ? 0.0 : ParseNumber(box->text);
}

/// False, with a message, unless the initial serviceability shown is above the terminal one.
bool LosesServiceability(ScreenContext& context, Form& form, const SolveKey& equation) {
    const double initial = ShownNumber(form, equation.InitialServiceability());
    if (initial > ShownNumber(form, equation.TerminalServiceability())) return true;
    context.calc.dialogs.ShowMessage({.text = "          Error:   Pt  >=  Po          ", .title = "Values"});
    return false;
}

/// What an indicator shows and for which field, to be put back.
struct IndicatorLook {
    EquationState state;
    Control control;
};

/// Solves for a field that can be solved for, and shows what came of it on the indicator of its equation.
void SolveForField(ScreenContext& context, Form& form, const Field& field) {
    const std::size_t equation = EquationOf(context, form, field);
    Control& indicator = *IndicatorLabel(form, equation);
    const IndicatorLook before{form.equations[equation], indicator};
    form.SetText("SolveForSide", std::to_string(equation + 1));
    const int result = context.calculations.SolveForVariable(context.calc, form.tag, field.seq.value_or(0));
    RefreshScreen(context, form);
    if (result != 0) {
        form.equations[equation] = before.state;
        indicator = before.control;
        return;
    }
    ClampToRange(context, field.name);
    context.bProjectChanged = true;
    context.act = "Solve For";
    ShowSolvedField(context, form, field);
    RecalcOutputs(context, form, "", 0);
    if (const auto flag = form.type().equations[equation].flag) context.balance.Set(*flag, true);
}

}  // namespace

void SolveForClick(ScreenContext& context, Form& form, std::size_t equation) {
    const std::vector<const SolveKey*> equations = context.calculations.EquationsOf(form.tag);
    if (equation < equations.size() && !LosesServiceability(context, form, *equations[equation])) return;
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
    for (std::size_t i = 0; i < form.equations.size(); ++i) SetSolveForState(form, SolveState::Resting, i);
}

void LoadScreen(ScreenContext& context, Form& form) {
    context.forms.CurrentForm = &form;
    if (!context.calc.store.IsOpen()) return;
    const std::vector<EquationState> before = form.equations;
    RefreshScreen(context, form);
    if (context.calc.store.GetVar("FieldChanged") == kTrue) SetSolveForState(form, SolveState::Warning);
    for (std::size_t i = 0; i < before.size(); ++i) LoadBalance(context, form, i, before[i].state);
}

void RecalcOnReturn(ScreenContext& context, Form& form) {
    const std::vector<EquationState> loaded = form.equations;
    RecalcOutputs(context, form, "", 0);
    for (std::size_t i = 0; i < loaded.size(); ++i) {
        if (loaded[i].state == SolveState::Resting) SetSolveForState(form, SolveState::Resting, i);
    }
}

bool ConfirmScreenClose(ScreenContext& context, Form& form) {
    bool warned = false;
    for (const FormEquation& equation : form.type().equations) {
        const auto flag = equation.flag;
        const Control* indicator = form.Find(equation.indicator);
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
