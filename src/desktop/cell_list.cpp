#include "desktop/cell_list.h"

#include <QApplication>

namespace kelvor {

void CellList::keyPressEvent(QKeyEvent* event) {
    const QString text = event->text();
    const bool plain = (event->modifiers() & ~Qt::KeyboardModifiers(Qt::ShiftModifier)) == Qt::NoModifier;
    const bool goesOn =
        sinceTyped_.isValid() && sinceTyped_.elapsed() < QApplication::keyboardInputInterval();
    if (!plain || text.isEmpty() || !text.at(0).isPrint() || (text == u" " && !goesOn)) {
        return QComboBox::keyPressEvent(event);
    }
    typed_ = goesOn ? typed_ + text : text;
    sinceTyped_.start();
    const int item = findText(typed_, Qt::MatchStartsWith);
    if (item < 0) return;
    setCurrentIndex(item);
    emit textActivated(itemText(item));
}

}  // namespace kelvor
