#include "desktop/layout_audit.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QCheckBox>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMap>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QTableView>
#include <QToolButton>
#include <algorithm>
#include <cmath>

namespace kelvor::test {

namespace {

constexpr double kLeastContrast = 4.5;

QRect PlaceOn(const QWidget& form, const QWidget& widget) {
    return {widget.mapTo(&form, QPoint(0, 0)), widget.size()};
}

std::string NameOf(const QWidget& widget) { return widget.objectName().toStdString(); }

std::string SizeText(QSize size) {
    return std::to_string(size.width()) + "x" + std::to_string(size.height());
}

bool IsLeaf(const QWidget& widget) {
    return qobject_cast<const QLabel*>(&widget) != nullptr ||
           qobject_cast<const QLineEdit*>(&widget) != nullptr ||
           qobject_cast<const QComboBox*>(&widget) != nullptr ||
           qobject_cast<const QAbstractButton*>(&widget) != nullptr;
}

/// What a widget needs to show all it holds.
QSize NeededSize(const QWidget& widget) {
    if (const auto* label = qobject_cast<const QLabel*>(&widget); label != nullptr && label->wordWrap()) {
        return {0, label->heightForWidth(label->width())};
    }
    const bool scrolls = qobject_cast<const QLineEdit*>(&widget) != nullptr;
    return scrolls ? widget.minimumSizeHint() : widget.sizeHint().expandedTo(widget.minimumSizeHint());
}

double Luminance(const QColor& colour) {
    const auto channel = [](double c) {
        return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * channel(colour.redF()) + 0.7152 * channel(colour.greenF()) +
           0.0722 * channel(colour.blueF());
}

struct TextColours {
    QColor text;
    QColor ground;
};

TextColours ColoursOf(const QWidget& widget) {
    const QPalette& palette = widget.palette();
    if (qobject_cast<const QLineEdit*>(&widget) != nullptr) {
        return {palette.color(QPalette::Text), palette.color(QPalette::Base)};
    }
    if (qobject_cast<const QPushButton*>(&widget) != nullptr ||
        qobject_cast<const QToolButton*>(&widget) != nullptr) {
        return {palette.color(QPalette::ButtonText), palette.color(QPalette::Button)};
    }
    return {palette.color(QPalette::WindowText), palette.color(QPalette::Window)};
}

QString CaptionOf(const QWidget& widget) {
    if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
        return label->buddy() == nullptr ? QString() : label->text();
    }
    const auto* button = qobject_cast<const QAbstractButton*>(&widget);
    return button == nullptr ? QString() : button->text();
}

}  // namespace

std::vector<QWidget*> VisibleLeaves(const QWidget& form) {
    std::vector<QWidget*> leaves;
    for (QWidget* widget : form.findChildren<QWidget*>()) {
        const bool named = !widget->objectName().isEmpty() && !widget->objectName().startsWith("qt_");
        if (named && IsLeaf(*widget) && widget->isVisibleTo(&form)) leaves.push_back(widget);
    }
    return leaves;
}

Complaints FindCutWidgets(const QWidget& form) {
    Complaints complaints;
    for (const QWidget* widget : VisibleLeaves(form)) {
        const QSize needed = NeededSize(*widget);
        if (widget->width() >= needed.width() && widget->height() >= needed.height()) continue;
        complaints.push_back(NameOf(*widget) + " is " + SizeText(widget->size()) + " and needs " +
                             SizeText(needed));
    }
    return complaints;
}

Complaints FindCutHeadings(const QWidget& form) {
    Complaints complaints;
    for (const auto* table : form.findChildren<QTableView*>()) {
        const QHeaderView& header = *table->horizontalHeader();
        for (int i = 0; table->isVisibleTo(&form) && i < header.count(); ++i) {
            const QString text = table->model()->headerData(i, Qt::Horizontal).toString();
            const QRect room(0, 0, header.sectionSize(i) - header.fontMetrics().averageCharWidth(),
                             QWIDGETSIZE_MAX);
            const QRect needed =
                header.fontMetrics().boundingRect(room, Qt::AlignCenter | Qt::TextWordWrap, text);
            if (needed.width() <= room.width() && needed.height() <= header.height()) continue;
            complaints.push_back("the heading " + text.toStdString() + " is cut");
        }
    }
    return complaints;
}

Complaints FindOverlaps(const QWidget& form) {
    Complaints complaints;
    const std::vector<QWidget*> leaves = VisibleLeaves(form);
    for (std::size_t i = 0; i < leaves.size(); ++i) {
        const QRect place = PlaceOn(form, *leaves[i]);
        if (!form.rect().contains(place)) complaints.push_back(NameOf(*leaves[i]) + " reaches out");
        for (std::size_t k = i + 1; k < leaves.size(); ++k) {
            if (!place.intersects(PlaceOn(form, *leaves[k]))) continue;
            complaints.push_back(NameOf(*leaves[i]) + " lies over " + NameOf(*leaves[k]));
        }
    }
    return complaints;
}

Complaints FindTabOrderBreaks(const QWidget& form, const std::vector<QWidget*>& order) {
    Complaints complaints;
    for (std::size_t i = 1; i < order.size(); ++i) {
        const QPoint before = PlaceOn(form, *order[i - 1]).center();
        const QPoint after = PlaceOn(form, *order[i]).center();
        if (after.y() > before.y() || after.x() > before.x()) continue;
        complaints.push_back("Tab goes back from " + NameOf(*order[i - 1]) + " to " + NameOf(*order[i]));
    }
    return complaints;
}

Complaints FindDoubleAccessKeys(const QWidget& form, const QWidget& menuBar) {
    Complaints complaints;
    QMap<QString, std::string> taken;
    for (const QAction* menu : menuBar.actions()) {
        taken.insert(QKeySequence::mnemonic(menu->text()).toString(), menu->text().toStdString());
    }
    for (const QWidget* widget : VisibleLeaves(form)) {
        const QString key = QKeySequence::mnemonic(CaptionOf(*widget)).toString();
        if (key.isEmpty()) continue;
        if (taken.contains(key)) {
            complaints.push_back(key.toStdString() + " of " + NameOf(*widget) + " is that of " +
                                 taken.value(key));
        }
        taken.insert(key, NameOf(*widget));
    }
    return complaints;
}

Complaints FindUnnamed(const QWidget& form) {
    Complaints complaints;
    for (QWidget* widget : VisibleLeaves(form)) {
        if (widget->focusPolicy() == Qt::NoFocus) continue;
        QAccessibleInterface* heard = QAccessible::queryAccessibleInterface(widget);
        if (heard == nullptr || heard->text(QAccessible::Name).isEmpty()) {
            complaints.push_back(NameOf(*widget) + " has no accessible name");
        }
    }
    return complaints;
}

Complaints FindWeakContrast(const QWidget& form) {
    Complaints complaints;
    for (const QWidget* widget : VisibleLeaves(form)) {
        if (!widget->isEnabledTo(&form)) continue;
        const TextColours colours = ColoursOf(*widget);
        const double ratio = ContrastRatio(colours.text, colours.ground);
        if (ratio >= kLeastContrast) continue;
        complaints.push_back(NameOf(*widget) + " has a contrast of " + std::to_string(ratio));
    }
    return complaints;
}

double ContrastRatio(const QColor& first, const QColor& second) {
    const auto [darker, lighter] = std::minmax({Luminance(first), Luminance(second)});
    return (lighter + 0.05) / (darker + 0.05);
}

QMap<QString, QRect> Places(const QWidget& form) {
    QMap<QString, QRect> places;
    for (const QWidget* widget : VisibleLeaves(form)) {
        places.insert(widget->objectName(), PlaceOn(form, *widget));
    }
    return places;
}

}  // namespace kelvor::test
