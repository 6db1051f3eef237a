// The drawings of a form: their menu, and the key that copies one.

#include <QContextMenuEvent>

#include "desktop/drawing_menu.h"
#include "desktop/form_view.h"

namespace kelvor {

std::vector<ChartData> FormView::Drawings() const {
    std::vector<ChartData> drawings;
    for (const auto& control : form_->controls()) {
        if (control->chart && control->visible) drawings.push_back(*control->chart);
    }
    return drawings;
}

/// The menu of the drawing under the mouse; by its key, that of all drawings of the form.
bool FormView::ShowMenuOf(const Control& control, const QContextMenuEvent& event) {
    if (control.IsBox()) return ShowFieldMenu(control, event.globalPos());
    const bool byKey = event.reason() == QContextMenuEvent::Keyboard;
    if (!control.chart && (!byKey || control.IsBox() || control.grid)) return false;
    const auto drawings = control.chart ? std::vector{*control.chart} : Drawings();
    if (drawings.empty() || door_.busy()) return false;
    door_.Perform([&](Program& program) { ShowDrawingMenu(program, drawings, event.globalPos()); });
    return true;
}

/// Ctrl+C copies the one drawing of a form, unless the focus is where it copies text.
bool FormView::HandleCopyKey(const QKeyEvent& key) {
    if (!key.matches(QKeySequence::Copy) || (form_->focus != nullptr && !form_->focus->IsButton()))
        return false;
    const auto drawings = Drawings();
    if (drawings.size() != 1) return false;
    CopyDrawing(drawings.front());
    return true;
}

}  // namespace kelvor
