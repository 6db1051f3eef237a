#include "desktop/window_style.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QPainter>
#include <QStyleOption>
#include <algorithm>

namespace kelvor {

namespace {

/// Around the letters of a caption.
constexpr int kCaptionRoom = 6;

/// A ground this dark, of 255, or darker has no shade below it that could be seen.
constexpr int kDarkest = 16;

bool LacksEdges(const QPalette& palette) { return palette.color(QPalette::Window).lightness() <= kDarkest; }

bool LacksEdges(const QStyleOption& option) { return LacksEdges(option.palette); }

bool HasEdge(QStyle::PrimitiveElement element) {
    switch (element) {
        case QStyle::PE_Frame:
        case QStyle::PE_FrameLineEdit:
        case QStyle::PE_FrameGroupBox:
        case QStyle::PE_FrameWindow:
        case QStyle::PE_FrameMenu:
        case QStyle::PE_PanelMenu:
        case QStyle::PE_PanelButtonCommand:
        case QStyle::PE_PanelButtonTool:
        case QStyle::PE_IndicatorCheckBox:
        case QStyle::PE_FrameTabWidget:
        case QStyle::PE_FrameFocusRect:
            return true;
        default:
            return false;
    }
}

/// What has the focus has a thicker edge in the colour of what is chosen.
QPen EdgePen(const QStyleOption& option, bool focused) {
    const bool enabled = option.state.testFlag(QStyle::State_Enabled);
    const QPalette::ColorGroup group = enabled ? QPalette::Active : QPalette::Disabled;
    if (!focused) return option.palette.color(group, QPalette::WindowText);
    QPen pen(option.palette.color(group, QPalette::Highlight), 2.0);
    pen.setJoinStyle(Qt::MiterJoin);
    return pen;
}

void DrawEdge(QPainter& painter, const QStyleOption& option, bool round, bool focused) {
    painter.save();
    painter.setPen(EdgePen(option, focused));
    painter.setBrush(Qt::NoBrush);
    const QRect edge = option.rect.adjusted(focused ? 1 : 0, focused ? 1 : 0, -1, -1);
    if (round) {
        painter.drawEllipse(edge);
    } else {
        painter.drawRect(edge);
    }
    painter.restore();
}

/// True if the keys go elsewhere than to a list or table. One that drops down from a box, and the one whose
/// cell is being edited, have them.
bool IsResting(const QWidget* widget) {
    const auto* view = qobject_cast<const QAbstractItemView*>(widget);
    if (view == nullptr || view->window()->windowType() == Qt::Popup) return false;
    const QWidget* focus = QApplication::focusWidget();
    return focus == nullptr || (focus != view && !view->isAncestorOf(focus));
}

QColor Between(const QColor& one, const QColor& other, double share) {
    const auto mix = [share](float from, float to) { return from + (to - from) * static_cast<float>(share); };
    return QColor::fromRgbF(mix(one.redF(), other.redF()), mix(one.greenF(), other.greenF()),
                            mix(one.blueF(), other.blueF()));
}

/// The palette of what is chosen while the keys go elsewhere: a shade of the ground, under usual letters.
QPalette RestingPalette(const QPalette& palette) {
    constexpr double kShade = 0.2;
    QPalette resting = palette;
    const QColor ink = palette.color(QPalette::Active, QPalette::Text);
    resting.setColor(QPalette::Highlight,
                     Between(palette.color(QPalette::Active, QPalette::Base), ink, kShade));
    resting.setColor(QPalette::HighlightedText, ink);
    return resting;
}

/// A caption in the letters of the window, which can be read on its ground, with an edge.
void DrawCaption(const QStyle& style, QPainter& painter, const QStyleOptionTitleBar& bar,
                 const QWidget* widget) {
    const QRect label = style.subControlRect(QStyle::CC_TitleBar, &bar, QStyle::SC_TitleBarLabel, widget);
    const bool active = (bar.titleBarState & QStyle::State_Active) != 0;
    painter.save();
    painter.fillRect(label, bar.palette.color(QPalette::Active, QPalette::Window));
    painter.setPen(bar.palette.color(QPalette::Active, QPalette::WindowText));
    const QString text = bar.fontMetrics.elidedText(bar.text, Qt::ElideRight, label.width());
    painter.drawText(label, Qt::AlignCenter, text);
    painter.restore();
    DrawEdge(painter, bar, false, active);
}

}  // namespace

void WindowStyle::Use() {
    if (dynamic_cast<WindowStyle*>(QApplication::style()) == nullptr) QApplication::setStyle(new WindowStyle);
}

/// What is off can still be read where the system's shade for it is lost on the ground.
void WindowStyle::polish(QPalette& palette) {
    QProxyStyle::polish(palette);
    if (!LacksEdges(palette)) return;
    constexpr double kShade = 0.6;
    const QColor shade = Between(palette.color(QPalette::Active, QPalette::Window),
                                 palette.color(QPalette::Active, QPalette::WindowText), kShade);
    for (const auto role : {QPalette::WindowText, QPalette::ButtonText, QPalette::Text})
        palette.setColor(QPalette::Disabled, role, shade);
}

int WindowStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
    const int usual = QProxyStyle::pixelMetric(metric, option, widget);
    if (metric != PM_TitleBarHeight || widget == nullptr) return usual;
    return std::max(usual, widget->fontMetrics().lineSpacing() + kCaptionRoom);
}

void WindowStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                              const QWidget* widget) const {
    const auto* item = qstyleoption_cast<const QStyleOptionViewItem*>(option);
    if (element != CE_ItemViewItem || item == nullptr || !IsResting(widget))
        return QProxyStyle::drawControl(element, option, painter, widget);
    QStyleOptionViewItem resting(*item);
    resting.palette = RestingPalette(item->palette);
    QProxyStyle::drawControl(element, &resting, painter, widget);
}

void WindowStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                const QWidget* widget) const {
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    if (option == nullptr || !LacksEdges(*option)) return;
    const bool focused = element == PE_FrameFocusRect ||
                         (element != PE_IndicatorCheckBox && option->state.testFlag(State_HasFocus));
    if (element == PE_IndicatorRadioButton) {
        DrawEdge(*painter, *option, true, false);
    } else if (HasEdge(element)) {
        DrawEdge(*painter, *option, false, focused);
    }
}

int WindowStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                           QStyleHintReturn* more) const {
    const QPalette palette = option == nullptr ? QApplication::palette() : option->palette;
    if (hint != SH_Table_GridLineColor || !LacksEdges(palette))
        return QProxyStyle::styleHint(hint, option, widget, more);
    constexpr double kShade = 0.5;
    const QColor line =
        Between(palette.color(QPalette::Base), palette.color(QPalette::Active, QPalette::Text), kShade);
    return static_cast<int>(line.rgb());
}

void WindowStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                     QPainter* painter, const QWidget* widget) const {
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    if (option == nullptr || !LacksEdges(*option)) return;
    if (control == CC_ComboBox) DrawEdge(*painter, *option, false, option->state.testFlag(State_HasFocus));
    const auto* bar = qstyleoption_cast<const QStyleOptionTitleBar*>(option);
    if (control == CC_TitleBar && bar != nullptr) DrawCaption(*this, *painter, *bar, widget);
}

}  // namespace kelvor
