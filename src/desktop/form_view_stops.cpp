// Stops of Tab beside the controls of the form itself: the tab strip, and what stands beside it. The model
// knows nothing of them and keeps its focus while they have the toolkit's.

#include <QAbstractButton>
#include <QBoxLayout>
#include <QTabBar>
#include <algorithm>

#include "desktop/form_view.h"
#include "desktop/key_table.h"

namespace kelvor {

void FormView::PutBesideTabs(QWidget& side) {
    auto* rows = qobject_cast<QBoxLayout*>(layout());
    const int at = rows->indexOf(tabs_);
    auto* columns = new QHBoxLayout;
    rows->insertLayout(at, columns, 1);
    rows->removeWidget(tabs_);
    columns->addWidget(tabs_, 1);
    columns->addWidget(&side, 1);
}

void FormView::PutBesideControl(const std::string& name, QWidget& side) {
    QWidget* control = FindWidget(name);
    auto* rows = qobject_cast<QBoxLayout*>(control->parentWidget()->layout());
    const int at = rows->indexOf(control);
    auto* columns = new QHBoxLayout;
    rows->insertLayout(at, columns, 1);
    rows->removeWidget(control);
    // The side takes the room that the page left free at its end.
    const int last = rows->count() - 1;
    if (rows->itemAt(last)->spacerItem() != nullptr) delete rows->takeAt(last);
    columns->addWidget(control, 0, Qt::AlignTop);
    columns->addSpacing(fontMetrics().lineSpacing());
    columns->addWidget(&side, 1);
}

void FormView::AddStop(QWidget& stop) {
    stops_.push_back(&stop);
    stop.installEventFilter(this);
}

std::vector<QWidget*> FormView::VisibleStops() const {
    std::vector<QWidget*> visible;
    for (const QPointer<QWidget>& stop : stops_) {
        if (stop != nullptr && stop->isVisible() && stop->isEnabled()) visible.push_back(stop);
    }
    return visible;
}

/// Tab from the last control of the form, or back from its first, goes to the stops. False if it stays
/// inside.
bool FormView::LeaveForStops(const QKeyEvent& key) {
    const bool back = key.key() == Qt::Key_Backtab;
    const std::vector<QWidget*> stops = VisibleStops();
    if (stops.empty() || (!back && key.key() != Qt::Key_Tab)) return false;
    const Control* first = form_->NextInTabOrder(nullptr, TabStep::Next);
    const Control* focus = form_->focus;
    const bool atEnd = focus == nullptr || first == nullptr ||
                       (back ? focus == first : form_->NextInTabOrder(focus, TabStep::Next) == first);
    if (atEnd) GoToStop(*(back ? stops.back() : stops.front()), back);
    return atEnd;
}

void FormView::GoToStop(QWidget& stop, bool back) {
    stop.setFocus(back ? Qt::BacktabFocusReason : Qt::TabFocusReason);
    window()->setAttribute(Qt::WA_KeyboardFocusChange);
}

/// From one stop to the next; behind the last the form has the focus again.
void FormView::StepStop(const QWidget& stop, bool back) {
    const std::vector<QWidget*> stops = VisibleStops();
    const auto at = std::find(stops.begin(), stops.end(), &stop);
    if (at == stops.end()) return SyncFocus();
    const bool last = back ? at == stops.begin() : at + 1 == stops.end();
    if (!last) return GoToStop(**(back ? at - 1 : at + 1), back);
    if (form_->focus == nullptr) return GoToStop(*(back ? stops.back() : stops.front()), back);
    // The control that has the model's focus is the one on the other side of the stops, or its first.
    SyncFocus();
    const Control* first = form_->NextInTabOrder(nullptr, TabStep::Next);
    if (!back && first != nullptr && form_->focus != first) Raise(UserEvent::Kind::Key, "Tab");
    if (back && first != nullptr && form_->focus == first) Raise(UserEvent::Kind::Key, "BackTab");
}

/// The arrows go along the tab strip, which keeps the focus.
bool FormView::HandleStripKey(const QKeyEvent& key) {
    const bool left = key.key() == Qt::Key_Left;
    if (!left && key.key() != Qt::Key_Right) return false;
    const int count = tabs_->count();
    Raise(UserEvent::Kind::SwitchTab, {}, {}, (form_->page() + (left ? count - 1 : 1)) % count);
    GoToStop(*tabs_->tabBar(), false);
    return true;
}

bool FormView::FilterStop(QWidget& stop, QEvent& event) {
    if (event.type() != QEvent::KeyPress) return false;
    const auto& key = static_cast<QKeyEvent&>(event);
    if (HandleTabKey(key)) return true;
    if (IsAccessKey(key)) return HandleKey(key);
    if (key.modifiers().testFlag(Qt::ControlModifier) || key.modifiers().testFlag(Qt::AltModifier))
        return false;
    switch (key.key()) {
        case Qt::Key_Tab:
        case Qt::Key_Backtab:
            StepStop(stop, key.key() == Qt::Key_Backtab);
            return true;
        case Qt::Key_Escape:
            SyncFocus();
            return true;
        case Qt::Key_F1:
            Raise(UserEvent::Kind::Key, "F1");
            return true;
        case Qt::Key_Return:
        case Qt::Key_Enter:
            if (auto* button = qobject_cast<QAbstractButton*>(&stop)) return button->click(), true;
            return false;
        default:
            return &stop == tabs_->tabBar() && HandleStripKey(key);
    }
}

}  // namespace kelvor
