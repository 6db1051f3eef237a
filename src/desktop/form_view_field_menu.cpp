// The menu of a field.

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <memory>

#include "desktop/copy_result.h"
#include "desktop/form_view.h"
#include "desktop/key_table.h"
#include "desktop/qt_text.h"
#include "desktop/translated_text.h"

namespace kelvor {

/// What a line of text offers by itself, the value with its unit, and the help.
bool FormView::ShowFieldMenu(const Control& control, const QPoint& place) {
    QWidget* widget = widgets_.value(&control);
    if (auto* list = qobject_cast<QComboBox*>(widget)) widget = list->lineEdit();
    auto* box = qobject_cast<QLineEdit*>(widget);
    if (box == nullptr || door_.busy()) return false;
    const std::unique_ptr<QMenu> menu(box->createStandardContextMenu());
    menu->setObjectName(QStringLiteral("FieldMenu"));
    menu->addSeparator();
    menu->addAction(TranslatedText("Copy &Value with Unit") + u'\t' + ShownKeyOf(KeyAct::CopyValue), this,
                    [this] { QApplication::clipboard()->setText(ValueOfFocus(door_.program(), *form_)); });
    menu->addAction(TranslatedText("&Help on This Field") + QStringLiteral("\tF1"), this,
                    [this] { Raise(UserEvent::Kind::Key, "F1"); });
    menu->exec(place);
    return true;
}

}  // namespace kelvor
