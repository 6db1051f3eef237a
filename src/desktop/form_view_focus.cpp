// The model owns the focus: a widget that would take it asks first, and the toolkit's follows.

#include <QApplication>
#include <QLineEdit>
#include <QMetaObject>
#include <utility>

#include "desktop/form_view.h"

namespace kelvor {

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

}  // namespace kelvor
