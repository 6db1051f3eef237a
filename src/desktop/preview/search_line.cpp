#include "desktop/preview/search_line.h"

#include <QKeyEvent>

#include "desktop/qt_text.h"
#include "desktop/translated_text.h"

namespace kelvor {

SearchLine::SearchLine(QWidget* parent) : QLineEdit(parent) {
    setFocusPolicy(Qt::ClickFocus);
    setClearButtonEnabled(true);
    setPlaceholderText(TranslatedText("Find"));
    setAccessibleName(TranslatedText("Find words on the pages"));
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
