// Which keys are the model's, and which a widget's own.

#include <QComboBox>
#include <QTabWidget>
#include <optional>

#include "desktop/form_view.h"
#include "desktop/grid_view.h"
#include "desktop/key_table.h"
#include "desktop/qt_text.h"

namespace kelvor {

namespace {

/// The model's name of a key that has one.
const char* KeyName(const QKeyEvent& key) {
    switch (key.key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            // With Shift it moves on, also where Enter alone selects.
            return key.modifiers().testFlag(Qt::ShiftModifier) ? "Tab" : "Enter";
        case Qt::Key_Tab:
            return "Tab";
        case Qt::Key_Backtab:
            return "BackTab";
        case Qt::Key_Escape:
            return "Esc";
        case Qt::Key_F1:
            return "F1";
        default:
            return nullptr;
    }
}

/// Keys that a box handles by itself, and that the model handles elsewhere.
const char* KeyNameOutsideBox(int key) {
    switch (key) {
        case Qt::Key_Space:
            return "Space";
        case Qt::Key_Up:
            return "Up";
        case Qt::Key_Down:
            return "Down";
        case Qt::Key_Left:
            return "Left";
        case Qt::Key_Right:
            return "Right";
        default:
            return nullptr;
    }
}

/// A character that Alt goes with; not one that a keyboard makes with AltGr.
bool IsLetterWithAlt(const QKeyEvent& key) {
    const Qt::KeyboardModifiers keys = key.modifiers();
    const bool altAlone = keys.testFlag(Qt::AltModifier) && !keys.testFlag(Qt::ControlModifier);
    return altAlone && !key.text().isEmpty() && key.text().at(0).isPrint();
}

/// A letter for a cell in which letters stand for words: the model knows which.
bool IsLetterOfWord(const Control& control, const QKeyEvent& key) {
    if (control.grid->current().words.empty() || key.text().size() != 1) return false;
    const QChar letter = key.text().at(0);
    return letter.isLetter() && letter.unicode() < 0x80;
}

bool IsPlain(const QKeyEvent& key) {
    return (key.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) == Qt::NoModifier;
}

}  // namespace

bool FormView::IsTravelKey(const QKeyEvent& key) {
    return key.matches(QKeySequence::Undo) || key.matches(QKeySequence::Redo) ||
           (key.key() == Qt::Key_Y && key.modifiers() == Qt::ControlModifier);
}

bool FormView::IsAccessKey(const QKeyEvent& key) const {
    if (!key.modifiers().testFlag(Qt::AltModifier) || key.key() > Qt::Key_Z) return false;
    return form_->FindAccessKey(static_cast<char>(key.key())) != nullptr;
}

/// The keys of the tabs; those with a number lead back to the hub from any form.
bool FormView::HandleTabKey(const QKeyEvent& key) {
    if (const auto tab = PressedKeyOf(KeyAct::NumberedTab, key)) {
        Raise(UserEvent::Kind::SwitchTab, {}, {}, *tab);
        return true;
    }
    const bool next = IsKeyOf(KeyAct::NextTab, key);
    if (tabs_ == nullptr || (!next && !IsKeyOf(KeyAct::PreviousTab, key))) return false;
    const int count = tabs_->count();
    Raise(UserEvent::Kind::SwitchTab, {}, {}, (form_->page() + (next ? 1 : count - 1)) % count);
    return true;
}

/// Empties a block that is marked. False if no more than one cell is.
bool FormView::EmptyMarkedCells(const GridView& grid) {
    const std::optional<CellRange> marked = grid.MarkedCells();
    if (marked) door_.Raise({.kind = UserEvent::Kind::EmptyCells, .cells = *marked});
    return marked.has_value();
}

/// In a grid the table itself moves by the arrows; in the line of a cell, up and down leave the cell.
bool FormView::HandleGridKey(const Control& control, const QKeyEvent& key) {
    const auto* grid = dynamic_cast<const GridView*>(widgets_.value(&control));
    const bool editing = grid != nullptr && grid->editor() != nullptr;
    const bool list = editing && qobject_cast<const QComboBox*>(grid->editor()) != nullptr;
    const char* name = KeyName(key);
    if (door_.spaceHeld && key.key() == Qt::Key_Space && key.isAutoRepeat()) return true;
    if (IsAccessKey(key) || HandleTabKey(key)) return HandleKey(key);
    if (IsLetterWithAlt(key)) return true;
    if (!IsPlain(key)) return false;
    if (name == nullptr && key.key() == Qt::Key_Delete && !editing) {
        if (EmptyMarkedCells(*grid)) return true;
        name = "Delete";
    }
    const bool leaves = key.key() == Qt::Key_Up || key.key() == Qt::Key_Down;
    if (name == nullptr && editing && !list && leaves) name = KeyNameOutsideBox(key.key());
    if (name == nullptr && !IsLetterOfWord(control, key)) return false;
    Raise(UserEvent::Kind::Key, name != nullptr ? std::string(name) : FromQt(key.text()));
    if (editing && form_ != nullptr) CloseCellEditor(control);
    return true;
}

/// An editor into which nothing was typed is not the model's business.
void FormView::CloseCellEditor(const Control& control) {
    auto* grid = dynamic_cast<GridView*>(widgets_.value(&control));
    if (grid != nullptr && !control.grid->typed) grid->EndEdit();
    SyncFocus();
}

void FormView::NoteKeyRelease(const QKeyEvent& key) {
    if (key.key() == Qt::Key_Space && !key.isAutoRepeat()) door_.spaceHeld = false;
}

bool FormView::HandleKey(const QKeyEvent& key) {
    if (door_.spaceHeld && key.key() == Qt::Key_Space && key.isAutoRepeat()) return true;
    if (HandleTabKey(key) || HandleCopyKey(key)) return true;
    if (IsAccessKey(key)) {
        if (!key.isAutoRepeat()) {
            Raise(UserEvent::Kind::Key, std::string("Alt+") + static_cast<char>(key.key()));
        }
        return true;
    }
    if (IsLetterWithAlt(key)) return true;  // no access key of this form, and no text either
    if (!IsPlain(key)) return false;
    if (LeaveForStops(key)) return true;
    const char* name = KeyName(key);
    const Control* focus = form_->focus;
    const bool inBox = focus != nullptr && focus->IsBox();
    if (name == nullptr && !inBox) name = KeyNameOutsideBox(key.key());
    if (name == nullptr && key.key() == Qt::Key_F2) name = "F2";
    const bool inList = inBox && focus->kind == ControlKind::ComboBox;
    if (name == nullptr && inList && (key.key() == Qt::Key_Up || key.key() == Qt::Key_Down)) {
        name = KeyNameOutsideBox(key.key());
    }
    if (name == nullptr) return false;
    if (key.key() == Qt::Key_Space) door_.spaceHeld = true;
    Raise(UserEvent::Kind::Key, name);
    return true;
}

}  // namespace kelvor
