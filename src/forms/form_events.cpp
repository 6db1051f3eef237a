#include "forms/form_events.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "forms/act_name.h"
#include "forms/balance_state.h"
#include "forms/field_entry.h"
#include "forms/field_help.h"
#include "forms/grid_entry.h"
#include "forms/indicator.h"
#include "forms/recalculation.h"
#include "forms/side_screen.h"
#include "forms/take_over.h"
#include "platform/real.h"
#include "platform/text.h"
#include "platform/translation.h"

namespace kelvor {

namespace {

bool IsFor(const Handler& handler, FormEvent event, const Control* control, HandlerOrder order) {
    if (handler.event != event || handler.order != order) return false;
    return handler.control.empty() || (control != nullptr && EqualNoCase(handler.control, control->name));
}

/// The place of the equation that a button solves; nothing for any other button.
std::optional<std::size_t> EquationOfButton(const Form& form, const Control& button) {
    const std::vector<FormEquation>& equations = form.type().equations;
    const auto found = std::find_if(equations.begin(), equations.end(), [&](const FormEquation& equation) {
        return EqualNoCase(equation.button, button.name);
    });
    if (found == equations.end()) return std::nullopt;
    return static_cast<std::size_t>(found - equations.begin());
}

}  // namespace

void FormEvents::Handle(FormEvent event, Form& form, Control* control, const std::function<void()>& common) {
    ScreenEvent told{context_, form, control};
    const auto run = [&](HandlerOrder order) {
        bool any = false;
        for (const Handler& handler : form.type().handlers) {
            if (!IsFor(handler, event, control, order)) continue;
            any = true;
            try {
                handler.run(told);
            } catch (const ArithmeticFault&) {
                // The routine is abandoned like a calculation: no number that a user types ends the program.
            }
        }
        return any;
    };
    run(HandlerOrder::Before);
    if (!run(HandlerOrder::Instead)) common();
    run(HandlerOrder::After);
}

// --- Opening, activating, closing -------------------------------------------------------------------

Form* FormEvents::Open(const OpenRequest& request) {
    const FormType* type = context_.forms.FindType(request.form);
    if (type == nullptr || (type->needsProject && !context_.calc.store.IsOpen()) || !Commit()) return nullptr;
    Form* form = context_.forms.Find(request.form);
    if (form != nullptr && request.call && type->isHelp) {
        if (!Close(*form)) return nullptr;
        form = nullptr;
    }
    const bool begins = form == nullptr || type->beginsAnew || (request.dim2 && form->dim2() != request.dim2);
    if (form == nullptr) form = &context_.forms.Add(*type, context_.catalogue);
    if (request.call) NoteCall(*form, *request.call);
    if (request.dim2) form->SetText("Dim2", std::to_string(*request.dim2));
    if (begins) Load(*form);
    Activate(*form);
    return Current() == form ? form : nullptr;
}

/// What a form does when it is made, or begins anew with another slice.
void FormEvents::Load(Form& form) {
    NoteCurrentCell(form);
    Handle(FormEvent::Load, form, nullptr, [&] {
        InitScreen(context_, form);
        FillValueItems(context_, form);
    });
    form.AssignAccessKeys();
    // Its values are other ones now, also where it is in front already.
    if (Current() == &form) context_.forms.CurrentForm = nullptr;
}

void FormEvents::Activate(Form& form) {
    if (Current() == &form || !Commit()) return;
    context_.forms.BringToFront(form);
    NoteCurrentCell(form);
    BringItemsOver(context_, form);
    Handle(FormEvent::Activate, form, nullptr, [&] {
        const auto returned = std::exchange(form.returned, std::nullopt);
        LoadScreen(context_, form);
        if (returned) {
            TakeReturn(form, *returned);
        } else {
            FocusFirstField(form);
        }
    });
    context_.forms.CurrentForm = &form;
}

/// After a side screen: what it has changed is recalculated and warned of, and the focus goes to the field
/// for which it was opened.
void FormEvents::TakeReturn(Form& form, const SideScreenReturn& returned) {
    Control* grid = returned.row > 0 ? form.FindGrid() : nullptr;
    if (grid != nullptr && returned.valueTaken) {
        Handle(FormEvent::CellChanged, form, grid, [] {});
        NoteRowsWritten(form, *grid, {returned.row});
    }
    RecalcOnReturn(context_, form);
    FocusFirstField(form);
    Control* caller = grid != nullptr ? grid : form.FindField(returned.field);
    if (caller == nullptr) caller = form.Find(returned.field);  // an option
    if (caller != nullptr && form.CanFocus(*caller)) GetFocus(form, *caller);
    if (!returned.valueTaken) return;
    form.edited = true;
    if (grid == nullptr && caller != nullptr) Handle(FormEvent::Stored, form, caller, [] {});
    WarnOfChange(context_, form, returned.field);
}

/// A form without a field that takes the focus has it on its first button.
void FormEvents::FocusFirstField(Form& form) {
    form.focus = nullptr;
    Control* first = form.NextInTabOrder(nullptr, TabStep::Next);
    const auto isField = [&](const auto& control) {
        return form.CanFocus(*control) && !control->IsButton() && !control->IsChoice();
    };
    const auto field = std::find_if(form.controls().begin(), form.controls().end(), isField);
    if (field != form.controls().end()) first = field->get();
    if (first != nullptr) GetFocus(form, *first);
}

bool FormEvents::Close(Form& form) {
    if (form.type().isHub) return false;
    if (!context_.calc.store.IsOpen()) {
        Unload(form);
        return true;
    }
    if (form.focus != nullptr && !LoseFocus(form, *form.focus)) return false;
    if (!ConfirmScreenClose(context_, form)) return false;
    Unload(form);
    return true;
}

void FormEvents::Unload(Form& form) {
    Handle(FormEvent::Unload, form, nullptr, [] {});
    context_.forms.Remove(form);
    ActivateFront();
}

void FormEvents::ActivateFront() {
    Form* current = Current();
    if (current == nullptr) {
        if (Form* front = context_.forms.Front()) Activate(*front);
    } else if (current->returned && Commit()) {
        // Its side screen was closed from outside: it takes the value over as if it had come in front.
        context_.forms.CurrentForm = nullptr;
        Activate(*current);
    }
}

void FormEvents::UnloadAll() {
    std::vector<Form*> open = context_.forms.InOpeningOrder();
    std::reverse(open.begin(), open.end());
    for (Form* form : open) {
        // A form that asks and is told to stay stays open; what closes the others goes on.
        if (!form->type().isHub) Close(*form);
    }
}

// --- Focus --------------------------------------------------------------------------------------------

bool FormEvents::LoseFocus(Form& form, Control& control) {
    if (form.focusLeft) return true;
    form.focusLeft = CommitControl(form, control);
    return form.focusLeft;
}

/// Stores what was typed into a control. False if it was refused.
bool FormEvents::CommitControl(Form& form, Control& control) {
    if (control.grid && control.grid->texts) return CommitCell(form, control);
    if (!context_.calc.store.IsOpen()) return true;
    if (control.grid) return CommitCell(form, control);
    if (!control.IsField()) return true;
    auto leaving = Leaving::Accepted;
    const bool changed = form.fieldChanged();
    Handle(FormEvent::LostFocus, form, &control, [&] {
        leaving = FieldLostFocus(context_, form, control);
        form.refused = leaving != Leaving::Accepted;
    });
    const bool stored = leaving == Leaving::Emptied || (leaving == Leaving::Accepted && changed);
    if (stored) {
        form.edited = true;
        Handle(FormEvent::Stored, form, &control, [] {});
    }
    return leaving == Leaving::Accepted;
}

void FormEvents::GetFocus(Form& form, Control& control) {
    form.focus = &control;
    form.focusLeft = false;
    if (control.grid) FindControlIndex(form, control.name);
    if (control.IsField()) FieldGotFocus(form, control);
    // Help for an option is asked for like that for a field.
    if (control.IsChoice()) form.SetText("SolveForField", control.name);
}

bool FormEvents::MoveFocus(Form& form, Control& control) {
    if (!form.CanFocus(control)) return false;
    if (form.focus == &control && !form.focusLeft) return true;
    if (form.focus != nullptr && !LoseFocus(form, *form.focus)) return false;
    GetFocus(form, control);
    return true;
}

bool FormEvents::Commit() {
    Form* form = Current();
    return form == nullptr || form->focus == nullptr || LoseFocus(*form, *form->focus);
}

void FormEvents::Settle() {
    Form* form = Current();
    if (form != nullptr && form->focus != nullptr && form->focusLeft) GetFocus(*form, *form->focus);
}

void FormEvents::Tab(Form& form, TabStep step) {
    if (Control* next = form.NextInTabOrder(form.focus, step)) MoveFocus(form, *next);
}

// --- Clicks -----------------------------------------------------------------------------------------------

void FormEvents::Press(Form& form, Control& button) {
    if (MoveFocus(form, button)) Click(form, button);
}

/// What else the form does on a click names itself. True if the button has given its name.
bool FormEvents::NameClick(const Control& control) {
    const bool common = EqualNoCase(control.name, kOkButton) || EqualNoCase(control.name, kHelpButton);
    if (control.IsChoice()) {
        context_.act = Filled(Translated("choice of %1"), {PlainCaption(control.text)});
        return false;
    }
    if (!context_.act.empty() || !control.IsButton() || common || !control.takesOver.empty()) return false;
    context_.act = PlainCaption(control.text);
    return true;
}

void FormEvents::Click(Form& form, Control& control) {
    if (control.kind == ControlKind::OptionButton) {
        for (const auto& other : form.controls()) {
            if (other->kind == ControlKind::OptionButton && other->group == control.group)
                other->value = false;
        }
        control.value = true;
    } else if (control.kind == ControlKind::CheckBox) {
        control.value = !control.value;
    }
    const bool named = NameClick(control);
    const std::string caption = context_.act;
    Handle(FormEvent::Click, form, &control, [&] {
        if (const auto equation = EquationOfButton(form, control)) SolveForClick(context_, form, *equation);
        if (EqualNoCase(control.name, kOkButton)) Close(form);
        if (EqualNoCase(control.name, kHelpButton)) OpenFieldHelp(context_, form);
        if (!control.worksOut.empty()) WorkOut(form, control.worksOut);
        if (!control.takesOver.empty()) TakeValueOver(form, control.takesOver);
    });
    // What a screen works out when it is opened is nothing that the user has done.
    const auto& open = context_.forms.InOpeningOrder();
    const bool opened = Current() != &form && std::find(open.begin(), open.end(), &form) != open.end();
    if (named && opened && context_.act == caption) context_.act.clear();
}

/// The help of a field as it comes when the field is left for the Help button.
void FormEvents::WorkOut(Form& form, const std::string& variable) {
    Control* field = form.FindField(variable);
    if (field != nullptr && MoveFocus(form, *field)) OpenFieldHelp(context_, form);
}

/// As if the value were typed: it is tested, stored and warned of.
void FormEvents::TakeValueOver(Form& form, const std::string& variable) {
    Control* field = form.FindField(variable);
    const std::string text = TakeOverText(context_, form, variable);
    if (field == nullptr || text.empty() || !MoveFocus(form, *field) || field->text == text) return;
    Type(text);
    LoseFocus(form, *field);
}

bool FormEvents::Choose(Form& form, Control& control, const std::string& item) {
    if (control.IsChoice()) {
        Press(form, control);
        return true;
    }
    if (control.kind != ControlKind::ComboBox) return false;
    if (std::find(control.items.begin(), control.items.end(), item) == control.items.end()) return false;
    if (MoveFocus(form, control)) Type(item);  // an entry may be picked once more
    return true;
}

// --- Projects ---------------------------------------------------------------------------------------------

void FormEvents::ShowProject(Form& form) {
    if (form.type().isHub || !form.type().needsProject) return;
    if (context_.calc.store.IsOpen()) {
        RefreshScreen(context_, form);
        return;
    }
    for (const auto& control : form.controls()) {
        if (control->IsField()) control->text.clear();
    }
    form.SetFieldChanged(false);
}

void FormEvents::ShowAnew(Form& form) {
    Form* const current = Current();
    Control* const focus = form.focus;
    NoteCurrentCell(form);
    BringItemsOver(context_, form);
    Handle(FormEvent::Activate, form, nullptr, [&] { LoadScreen(context_, form); });
    if (form.focus != focus && focus != nullptr && form.CanFocus(*focus)) GetFocus(form, *focus);
    context_.forms.CurrentForm = current;
    if (current != nullptr) NoteCurrentCell(*current);
}

void FormEvents::AfterTravel(Form& form) {
    Handle(FormEvent::Travelled, form, nullptr, [] {});
}

// --- Units ------------------------------------------------------------------------------------------------

void FormEvents::AfterUnitSwitch() {
    Form* form = Current();
    if (form == nullptr || !context_.calc.store.IsOpen()) return;
    BringItemsOver(context_, *form);
    Handle(FormEvent::UnitsSwitched, *form, nullptr, [&] { RefreshScreen(context_, *form); });
    if (form->focus != nullptr) GetFocus(*form, *form->focus);
}

void FormEvents::LeaveAndEnter() {
    Form* form = Current();
    if (form == nullptr || form->focus == nullptr) return;
    form->focusLeft = false;
    if (LoseFocus(*form, *form->focus)) GetFocus(*form, *form->focus);
}

}  // namespace kelvor
