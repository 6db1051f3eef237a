#include "desktop/preview/search_line.h"

#include <QKeyEvent>

namespace kelvor {

SearchLine::SearchLine(QWidget* parent) : QLineEdit(parent) {
    setFocusPolicy(Qt::ClickFocus);
    setClearButtonEnabled(true);
    setPlaceholderText(QStringLiteral("Find"));
    setAccessibleName(QStringLiteral("Find words on the pages"));
}

void SearchLine::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            onStep(event->modifiers().testFlag(Qt::ShiftModifier) ? -1 : 1);
            event->accept();
            return;
        case Qt::Key_Escape:
            onLeave();
            event->accept();
            return;
        default:
            QLineEdit::keyPressEvent(event);
    }
}

}  // namespace kelvor
