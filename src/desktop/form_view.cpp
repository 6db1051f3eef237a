#include "desktop/form_view.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMetaObject>
#include <QMouseEvent>
#include <QTabBar>
#include <algorithm>
#include <utility>

#include "desktop/chart_view.h"
#include "desktop/control_widgets.h"
#include "desktop/form_layout.h"
#include "desktop/grid_view.h"
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

FormView::FormView(Form& form, EventDoor& door, QWidget* parent)
    : QWidget(parent), form_(&form), door_(door) {
    setFocusPolicy(Qt::ClickFocus);
    setObjectName(ToQt(form.name()));
    setWindowTitle(ToQt(form.caption));
    setAccessibleName(ToQt(form.caption));
    MakeWidgets();
    tabs_ = LayOutForm(form, *this, [this](const std::string& name) { return FindWidget(name); });
    SetBuddies();
    ConnectWidgets();
    Sync();
}

/// What is inside goes after this; it must not report its end to what is no more.
FormView::~FormView() {
    for (QObject* inside : findChildren<QObject*>()) inside->disconnect(this);
}

void FormView::MakeWidgets() {
    for (const auto& control : form_->controls()) {
        QWidget* widget = control->grid    ? MakeGrid(*control)
                          : control->chart ? MakeChart(*control, this)
                                           : MakeWidget(*control, this);
        widget->setObjectName(ToQt(control->name));
        widget->setVisible(control->visible);
        widgets_.insert(control.get(), widget);
        controls_.insert(widget, control.get());
    }
}

QWidget* FormView::MakeGrid(const Control& control) {
    GridHooks hooks;
    hooks.read = [this](int row, const GridColumn& column) {
        return form_ == nullptr ? std::string() : door_.program().CellText(*form_, row, column);
    };
    hooks.moveTo = [this](int row, const GridColumn& column) {
        if (!door_.wasRefused() && BecomeCurrent()) {
            Raise(UserEvent::Kind::MoveToCell, column.variable, {}, row);
        }
        Sync();
    };
    hooks.type = [this](const std::string& text) { Raise(UserEvent::Kind::Type, {}, text); };
    hooks.paste = [this](const std::string& block) { Raise(UserEvent::Kind::PasteCells, {}, block); };
    hooks.deleteRow = [this](int row) { Raise(UserEvent::Kind::DeleteRow, {}, {}, row); };
    hooks.editorOpened = [this, &control](QWidget& editor) {
        editor.installEventFilter(this);
        controls_.insert(&editor, &control);
        connect(&editor, &QObject::destroyed, this, [this](const QObject* gone) { controls_.remove(gone); });
    };
    return new GridView(control, std::move(hooks), this);
}

void FormView::SetBuddies() {
    for (const auto& control : form_->controls()) {
        if (control->labelOf.empty()) continue;
        if (auto* label = qobject_cast<QLabel*>(widgets_.value(control.get()))) {
            label->setBuddy(FindWidget(control->labelOf));
        }
    }
}

void FormView::ConnectWidgets() {
    for (const auto& control : form_->controls()) ConnectControl(*control, *widgets_.value(control.get()));
    if (tabs_ != nullptr) tabs_->tabBar()->installEventFilter(this);
}

void FormView::ConnectControl(const Control& control, QWidget& widget) {
    widget.installEventFilter(this);
    const auto edited = [this, &control](const QString& text) { OnEdited(control, text); };
    if (auto* box = qobject_cast<QLineEdit*>(&widget)) {
        connect(box, &QLineEdit::textEdited, this, edited);
    } else if (auto* list = qobject_cast<QComboBox*>(&widget)) {
        connect(list, &QComboBox::textActivated, this, edited);
        connect(list->lineEdit(), &QLineEdit::textEdited, this, edited);
        list->lineEdit()->installEventFilter(this);
        controls_.insert(list->lineEdit(), &control);
    } else if (auto* button = qobject_cast<QAbstractButton*>(&widget)) {
        const auto kind = control.IsChoice() ? UserEvent::Kind::Choose : UserEvent::Kind::Press;
        connect(button, &QAbstractButton::clicked, this, [this, &control, kind] {
            if (BecomeCurrent()) Raise(kind, control.name);
        });
    }
}

QWidget* FormView::FindWidget(const std::string& name) const {
    const Control* control = form_ == nullptr ? nullptr : form_->Find(name);
    return control == nullptr ? nullptr : widgets_.value(control);
}

void FormView::Detach() {
    form_ = nullptr;
    for (QWidget* widget : std::as_const(widgets_)) {
        if (auto* grid = dynamic_cast<GridView*>(widget)) grid->Detach();
    }
}

// --- From the model to the widgets ------------------------------------------------------------------

void FormView::Sync() {
    if (form_ == nullptr) return;
    for (const auto& control : form_->controls()) {
        QWidget* widget = widgets_.value(control.get());
        if (auto* grid = dynamic_cast<GridView*>(widget)) grid->Show();
        const bool rewritten = MirrorControl(*control, *widget);
        auto* box = qobject_cast<QLineEdit*>(widget);
        if (rewritten && box != nullptr && form_->focus == control.get()) box->selectAll();
    }
    for (const auto& control : form_->controls()) {
        if (control->labelOf.empty()) continue;
        NameField(*FindWidget(control->labelOf), *control, form_->FindUnitOf(control->labelOf));
    }
    if (tabs_ != nullptr && tabs_->currentIndex() != form_->page()) {
        const QSignalBlocker quiet(tabs_);
        tabs_->setCurrentIndex(form_->page());
    }
}

void FormView::SyncFocus() {
    if (form_ == nullptr) return;
    QWidget* widget = form_->focus == nullptr ? this : widgets_.value(form_->focus);
    const bool moved =
        std::exchange(shownFocus_, form_->focus) != form_->focus || shownSelections_ != form_->selections;
    shownSelections_ = form_->selections;
    const QWidget* focus = QApplication::focusWidget();
    const bool inside =
        focus != nullptr && widget != this && widget->isAncestorOf(focus);  // a cell is edited
    if (!widget->hasFocus() && !inside) widget->setFocus(Qt::OtherFocusReason);
    // The keys that move the focus never reach the toolkit, which would begin to draw it at the first of
    // them.
    window()->setAttribute(Qt::WA_KeyboardFocusChange);
    auto* box = qobject_cast<QLineEdit*>(widget);
    if (moved && box != nullptr) box->selectAll();
}

void FormView::focusInEvent(QFocusEvent* event) {
    QWidget::focusInEvent(event);
    // A click beside the controls leaves the focus where it was.
    if (!door_.busy()) SyncFocus();
}

void FormView::changeEvent(QEvent* event) {
    if (event->type() == QEvent::PaletteChange) Sync();
    QWidget::changeEvent(event);
}

// --- From the user to the model ---------------------------------------------------------------------

void FormView::Raise(UserEvent::Kind kind, const std::string& name, const std::string& text, int number) {
    door_.Raise({kind, name, text, number});
}

bool FormView::BecomeCurrent() {
    if (form_ == nullptr) return false;
    const FormRegistry& forms = door_.program().state().formRegistry;
    if (forms.CurrentForm != form_) Raise(UserEvent::Kind::ActivateForm, form_->name());
    return form_ != nullptr && forms.CurrentForm == form_;
}

bool FormView::RequestFocus(const Control& control) {
    if (!BecomeCurrent()) return false;
    if (form_->focus != &control) Raise(UserEvent::Kind::Focus, control.name);
    return form_ != nullptr && form_->focus == &control;
}

bool FormView::eventFilter(QObject* watched, QEvent* event) {
    if (form_ == nullptr) return false;
    if (tabs_ != nullptr && watched == tabs_->tabBar()) return FilterTabBar(*event);
    const Control* control = controls_.value(watched);
    if (control == nullptr) return QWidget::eventFilter(watched, event);
    return Filter(*control, *event) || QWidget::eventFilter(watched, event);
}

bool FormView::Filter(const Control& control, QEvent& event) {
    switch (event.type()) {
        case QEvent::KeyRelease:
            NoteKeyRelease(static_cast<QKeyEvent&>(event));
            return false;
        case QEvent::KeyPress:
            return control.grid ? HandleGridKey(control, static_cast<QKeyEvent&>(event))
                                : HandleKey(static_cast<QKeyEvent&>(event));
        case QEvent::ShortcutOverride:
            if (IsAccessKey(static_cast<QKeyEvent&>(event))) event.accept();
            return event.isAccepted() && IsAccessKey(static_cast<QKeyEvent&>(event));
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick:
            return door_.wasRefused() || (control.IsBox() && !RequestFocus(control));
        case QEvent::FocusIn:
            OnFocusIn(control, static_cast<QFocusEvent&>(event).reason());
            return false;
        default:
            return false;
    }
}

void FormView::OnFocusIn(const Control& control, Qt::FocusReason reason) {
    if (door_.busy() || form_->focus == &control) return;
    const bool asked = reason == Qt::ShortcutFocusReason || reason == Qt::TabFocusReason ||
                       reason == Qt::BacktabFocusReason || reason == Qt::MouseFocusReason ||
                       reason == Qt::OtherFocusReason;
    const bool isCurrent = door_.program().state().formRegistry.CurrentForm == form_;
    if (asked && isCurrent && !RequestFocus(control)) door_.NoteRefusal();
    // A window that comes back to the front, or a refusal: the focus goes where the model has it.
    QMetaObject::invokeMethod(
        this,
        [this] {
            if (!door_.busy() && isActiveWindow()) SyncFocus();
        },
        Qt::QueuedConnection);
}

void FormView::OnEdited(const Control& control, const QString& text) {
    if (form_ == nullptr || door_.busy()) return;
    if (RequestFocus(control)) Raise(UserEvent::Kind::Type, {}, FromQt(text));
    if (form_ != nullptr && !door_.busy()) Sync();
}

/// A click on a tab is a wish; the model says whether the page changes.
bool FormView::FilterTabBar(QEvent& event) {
    if (event.type() != QEvent::MouseButtonPress && event.type() != QEvent::MouseButtonDblClick) return false;
    const int tab = tabs_->tabBar()->tabAt(static_cast<QMouseEvent&>(event).position().toPoint());
    if (tab >= 0 && !door_.wasRefused()) Raise(UserEvent::Kind::SwitchTab, {}, {}, tab);
    return true;
}

bool FormView::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride && form_ != nullptr &&
        IsAccessKey(static_cast<QKeyEvent&>(*event))) {
        event->accept();
        return true;
    }
    // The model moves the focus, so Tab never gets to the toolkit's own chain.
    if (event->type() == QEvent::KeyPress && form_ != nullptr && HandleKey(static_cast<QKeyEvent&>(*event))) {
        return true;
    }
    return QWidget::event(event);
}

bool FormView::IsAccessKey(const QKeyEvent& key) const {
    if (!key.modifiers().testFlag(Qt::AltModifier) || key.key() > Qt::Key_Z) return false;
    return form_->FindAccessKey(static_cast<char>(key.key())) != nullptr;
}

bool FormView::HandleTabKey(const QKeyEvent& key) {
    if (tabs_ == nullptr || !key.modifiers().testFlag(Qt::ControlModifier)) return false;
    if (key.key() != Qt::Key_PageUp && key.key() != Qt::Key_PageDown) return false;
    const int count = tabs_->count();
    const int step = key.key() == Qt::Key_PageDown ? 1 : count - 1;
    Raise(UserEvent::Kind::SwitchTab, {}, {}, (form_->page() + step) % count);
    return true;
}

/// Empties every cell of a block that is marked, but computed ones. False if no more than one cell is.
bool FormView::EmptyMarkedCells(const Control& control, const GridView& grid) {
    QModelIndexList marked = grid.selectionModel()->selectedIndexes();
    if (marked.size() < 2) return false;
    std::sort(marked.begin(), marked.end());
    for (const QModelIndex& cell : marked) {
        const GridColumn& column = control.grid->columns[static_cast<std::size_t>(cell.column())];
        if (!column.locked) Raise(UserEvent::Kind::EditCell, column.variable, {}, cell.row() + 1);
        if (form_ == nullptr) break;
    }
    return true;
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
        if (EmptyMarkedCells(control, *grid)) return true;
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
    if (HandleTabKey(key)) return true;
    if (IsAccessKey(key)) {
        if (!key.isAutoRepeat()) {
            Raise(UserEvent::Kind::Key, std::string("Alt+") + static_cast<char>(key.key()));
        }
        return true;
    }
    if (IsLetterWithAlt(key)) return true;  // no access key of this form, and no text either
    if (!IsPlain(key)) return false;
    const char* name = KeyName(key);
    const Control* focus = form_->focus;
    const bool inBox = focus != nullptr && focus->IsBox();
    if (name == nullptr && !inBox) name = KeyNameOutsideBox(key.key());
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
