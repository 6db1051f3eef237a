// Typing, and the keys of a form.

#include <algorithm>
#include <string_view>
#include <vector>

#include "forms/coded_list.h"
#include "forms/field_entry.h"
#include "forms/form_events.h"
#include "platform/text.h"

namespace kelvor {

namespace {

/// Keys that move the cursor of a grid while it has the focus. Enter moves on like Tab.
bool IsCursorKey(std::string_view key) {
    constexpr std::string_view kKeys[] = {"Up", "Down", "Left", "Right", "Tab", "BackTab", "Enter"};
    return std::find(std::begin(kKeys), std::end(kKeys), key) != std::end(kKeys);
}

/// The small button beside the field in hand; null if there is none that can be pressed.
Control* SmallButtonOfFocus(const Form& form) {
    if (form.focus == nullptr || form.focus->tag.empty()) return nullptr;
    for (const auto& control : form.controls()) {
        const bool isOfField = EqualNoCase(control->worksOut, form.focus->tag) ||
                               EqualNoCase(control->takesOver, form.focus->tag);
        if (isOfField && form.CanFocus(*control)) return control.get();
    }
    return nullptr;
}

}  // namespace

void FormEvents::Type(const std::string& text) {
    Form* form = Current();
    if (form == nullptr || form->focus == nullptr) return;
    Control& control = *form->focus;
    if (control.grid) TypeIntoCell(*form, control, text);
    if (control.kind != ControlKind::TextBox && control.kind != ControlKind::ComboBox) return;
    if (control.locked || (control.text.empty() && text.empty())) return;
    control.text = control.words.empty()
                       ? text
                       : CompleteWord(control.words, control.text, text, form->spelt).value_or(text);
    form->caret = control.text.size();
    Handle(FormEvent::Change, *form, &control, [&] { FieldChange(*form, control); });
}

void FormEvents::TypeCharacter(Form& form, const std::string& character) {
    if (form.focus == nullptr) return;
    if (form.focus->grid) {
        TypeCharacterIntoCell(form, *form.focus, character);
        return;
    }
    const std::size_t place = std::min(form.caret.value_or(0), form.focus->text.size());
    std::string text = form.caret ? form.focus->text : "";
    Type(text.insert(place, character));
    if (form.focus->words.empty()) form.caret = place + character.size();
}

/// Empties a box that is selected as a whole, else takes the character behind the cursor.
void FormEvents::DeleteCharacter(Form& form) {
    if (form.focus == nullptr) return;
    if (form.focus->grid) {
        if (!form.fieldChanged()) Type("");
        CommitCell(form, *form.focus);
        return;
    }
    const std::size_t place = form.caret.value_or(0);
    if (form.caret && place >= form.focus->text.size()) return;
    std::string text = form.caret ? form.focus->text : "";
    if (form.caret) text.erase(place, NextCharacter(text, place) - place);
    Type(text);
    form.caret = place;
}

/// Left and Right in a box: a selection is left at its end on that side.
void FormEvents::MoveCaret(Form& form, int step) {
    const std::string& text = form.focus->text;
    if (!form.caret) {
        form.caret = step < 0 ? 0 : text.size();
    } else {
        form.caret = step < 0 ? PreviousCharacter(text, *form.caret) : NextCharacter(text, *form.caret);
    }
}

bool FormEvents::Key(const std::string& key) {
    Form* form = Current();
    if (form == nullptr) return true;
    if (key.size() == 5 && key.starts_with("Alt+")) {
        PressAccessKey(*form, key.back());
    } else if (!key.empty() && NextCharacter(key, 0) == key.size()) {
        TypeCharacter(*form, key);
    } else {
        return NamedKey(*form, key);
    }
    return true;
}

bool FormEvents::NamedKey(Form& form, const std::string& key) {
    if (form.focus != nullptr && form.focus->grid && IsCursorKey(key)) {
        StepCell(form, *form.focus, key);
        return true;
    }
    const bool onButton = form.focus != nullptr && (form.focus->IsButton() || form.focus->IsChoice());
    const bool onOption = form.focus != nullptr && form.focus->kind == ControlKind::OptionButton;
    if (key == "Enter" && form.type().isHub && onOption) {
        Click(form, *form.focus);
    } else if (key == "Enter" || key == "Tab") {
        Tab(form, TabStep::Next);
    } else if (key == "BackTab") {
        Tab(form, TabStep::Previous);
    } else if (key == "Esc" && form.type().isHelp) {
        Close(form);
    } else if (key == "Esc") {
        Restore(form);
    } else if (key == "Space") {
        if (onButton) {
            Click(form, *form.focus);
        } else {
            TypeCharacter(form, " ");
        }
    } else if (key == "F1") {
        if (Control* help = form.Find(kHelpButton)) Press(form, *help);
    } else if (key == "Delete") {
        DeleteCharacter(form);
    } else if (key == "Up" || key == "Left") {
        Step(form, key, -1);
    } else if (key == "Down" || key == "Right") {
        Step(form, key, 1);
    } else if (key == "F2") {
        if (Control* button = SmallButtonOfFocus(form)) Press(form, *button);
    } else {
        return false;
    }
    return true;
}

/// Drops what was typed and not yet stored.
bool FormEvents::DropTyping() {
    Form* form = Current();
    if (form == nullptr || !form->IsTyping()) return false;
    Restore(*form);
    return true;
}

void FormEvents::Restore(Form& form) {
    if (form.focus == nullptr) return;
    if (form.focus->grid) {
        form.focus->grid->typed.reset();
        form.SetFieldChanged(false);
    } else {
        RestoreField(context_, form, *form.focus);
    }
}

void FormEvents::Step(Form& form, const std::string& key, int step) {
    if (form.focus == nullptr) return;
    if (form.focus->kind == ControlKind::OptionButton) {
        StepOption(form, *form.focus, step);
    } else if (form.focus->kind == ControlKind::ComboBox && (key == "Up" || key == "Down")) {
        StepItem(*form.focus, step);
    } else if (form.focus->kind == ControlKind::TextBox && (key == "Left" || key == "Right")) {
        MoveCaret(form, step);
    }
}

void FormEvents::StepOption(Form& form, const Control& option, int step) {
    std::vector<Control*> group;
    for (const auto& control : form.controls()) {
        const bool isIn = control->kind == ControlKind::OptionButton && control->group == option.group;
        if (isIn && form.CanFocus(*control)) group.push_back(control.get());
    }
    if (group.empty()) return;
    const auto place = std::find(group.begin(), group.end(), &option) - group.begin();
    const auto count = static_cast<std::ptrdiff_t>(group.size());
    Press(form, *group[static_cast<std::size_t>((place + step + count) % count)]);
}

void FormEvents::StepItem(const Control& list, int step) {
    const auto place = std::find(list.items.begin(), list.items.end(), list.text);
    const auto count = static_cast<std::ptrdiff_t>(list.items.size());
    const std::ptrdiff_t next = place == list.items.end() ? 0 : place - list.items.begin() + step;
    if (next >= 0 && next < count) Type(list.items[static_cast<std::size_t>(next)]);
}

void FormEvents::PressAccessKey(Form& form, char key) {
    Control* control = form.FindAccessKey(key);
    if (control == nullptr || !MoveFocus(form, *control)) return;
    if (control->IsButton() || control->IsChoice()) Click(form, *control);
}

}  // namespace kelvor
