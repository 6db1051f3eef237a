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
#include "desktop/preview/report_pages_view.h"
#include "desktop/qt_text.h"

namespace kelvor {

FormView::FormView(Form& form, EventDoor& door, QWidget* parent)
    : QWidget(parent), form_(&form), door_(door) {
    setFocusPolicy(Qt::ClickFocus);
    setObjectName(ToQt(form.name()));
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
        QWidget* widget = MakeControl(*control);
        widget->setObjectName(ToQt(control->name));
        widget->setVisible(control->visible);
        widgets_.insert(control.get(), widget);
        controls_.insert(widget, control.get());
    }
}

QWidget* FormView::MakeControl(const Control& control) {
    if (control.grid) return MakeGrid(control);
    if (control.chart) return MakeChart(control, this);
    if (control.kind == ControlKind::ReportPages) return MakeReportPages(control);
    return MakeWidget(control, this);
}

QWidget* FormView::MakeReportPages(const Control& control) {
    const auto engine = [this]() -> ReportEngine& { return *door_.program().state().reports.engine(); };
    ReportPagesHooks hooks;
    hooks.setup = [engine] { return engine().Pages(); };
    hooks.changeSetup = [engine](const PageSetup& setup) { engine().SetPages(setup); };
    hooks.write = [engine, &control](ReportFormat format, const Path& file) {
        engine().Write({control.document, {}}, format, file);
    };
    hooks.giveFocusBack = [this] { SyncFocus(); };
    return new ReportPagesView(std::move(hooks), this);
}

QWidget* FormView::MakeGrid(const Control& control) {
    GridHooks hooks;
    hooks.read = [this](int row, const GridColumn& column) {
        return form_ == nullptr ? std::string() : door_.program().CellText(*form_, row, column);
    };
    hooks.note = [this](int row, const GridColumn& column) {
        return form_ == nullptr ? std::string() : door_.program().CellNote(*form_, row, column);
    };
    hooks.takesEdit = [this](int row, const GridColumn& column) {
        return form_ != nullptr && door_.program().TakesEdit(*form_, row, column);
    };
    hooks.moveTo = [this](int row, const GridColumn& column) {
        if (!door_.wasRefused() && BecomeCurrent()) {
            Raise(UserEvent::Kind::MoveToCell, column.variable, {}, row);
        }
        Sync();
    };
    hooks.type = [this](const std::string& text) { Raise(UserEvent::Kind::Type, {}, text); };
    hooks.paste = [this](const std::string& block) { Raise(UserEvent::Kind::PasteCells, {}, block); };
    hooks.shiftRow = [this](UserEvent::Kind kind, int row) { Raise(kind, {}, {}, row); };
    hooks.marked = [this] {
        if (whenMarked) whenMarked();
    };
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

// --- From the user to the model ---------------------------------------------------------------------

void FormView::Raise(UserEvent::Kind kind, const std::string& name, const std::string& text, int number) {
    door_.Raise({kind, name, text, number});
}

bool FormView::eventFilter(QObject* watched, QEvent* event) {
    if (form_ == nullptr) return false;
    if (tabs_ != nullptr && watched == tabs_->tabBar()) {
        return FilterTabBar(*event) || FilterStop(*tabs_->tabBar(), *event);
    }
    if (std::find(stops_.begin(), stops_.end(), watched) != stops_.end()) {
        return FilterStop(*qobject_cast<QWidget*>(watched), *event);
    }
    const Control* control = controls_.value(watched);
    if (control == nullptr) return QWidget::eventFilter(watched, event);
    if (Filter(*control, *event)) return true;
    // A box that may not have the focus has lost it again by now: it must not show a caret.
    const auto* widget = qobject_cast<QWidget*>(watched);
    return event->type() == QEvent::FocusIn && widget != nullptr && !widget->hasFocus();
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
            // A box must not keep the keys of Undo and Redo to itself: the Edit menu has them.
            if (IsTravelKey(static_cast<QKeyEvent&>(event))) {
                event.ignore();
                return true;
            }
            if (IsAccessKey(static_cast<QKeyEvent&>(event))) event.accept();
            return event.isAccepted() && IsAccessKey(static_cast<QKeyEvent&>(event));
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick:
            return door_.wasRefused() || (control.IsBox() && !RequestFocus(control));
        case QEvent::ContextMenu:
            return ShowMenuOf(control, static_cast<QContextMenuEvent&>(event));
        case QEvent::FocusIn:
            OnFocusIn(control, static_cast<QFocusEvent&>(event).reason());
            return false;
        default:
            return false;
    }
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

}  // namespace kelvor
