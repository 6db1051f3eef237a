#include "desktop/window_style.h"

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

bool LacksEdges(const QStyleOption& option) {
    return option.palette.color(QPalette::Window).lightness() <= kDarkest;
}

bool HasEdge(QStyle::PrimitiveElement element) {
    switch (element) {
        case QStyle::PE_Frame:
        case QStyle::PE_FrameLineEdit:
        case QStyle::PE_FrameGroupBox:
        case QStyle::PE_FrameWindow:
        case QStyle::PE_FrameMenu:
        case QStyle::PE_PanelButtonCommand:
        case QStyle::PE_PanelButtonTool:
        case QStyle::PE_IndicatorCheckBox:
        case QStyle::PE_FrameTabWidget:
            return true;
        default:
            return false;
    }
}

void DrawEdge(QPainter& painter, const QStyleOption& option, bool round) {
    const bool enabled = option.state.testFlag(QStyle::State_Enabled);
    const QPalette::ColorGroup group = enabled ? QPalette::Active : QPalette::Disabled;
    painter.save();
    painter.setPen(option.palette.color(group, QPalette::WindowText));
    painter.setBrush(Qt::NoBrush);
    const QRect edge = option.rect.adjusted(0, 0, -1, -1);
    if (round) {
        painter.drawEllipse(edge);
    } else {
        painter.drawRect(edge);
    }
    painter.restore();
}

}  // namespace

void WindowStyle::Use() {
    if (dynamic_cast<WindowStyle*>(QApplication::style()) == nullptr) QApplication::setStyle(new WindowStyle);
}

int WindowStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
    const int usual = QProxyStyle::pixelMetric(metric, option, widget);
    if (metric != PM_TitleBarHeight || widget == nullptr) return usual;
    return std::max(usual, widget->fontMetrics().lineSpacing() + kCaptionRoom);
}

void WindowStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                const QWidget* widget) const {
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    if (option == nullptr || !LacksEdges(*option)) return;
    if (element == PE_IndicatorRadioButton) {
        DrawEdge(*painter, *option, true);
    } else if (HasEdge(element)) {
        DrawEdge(*painter, *option, false);
    }
}

void WindowStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                     QPainter* painter, const QWidget* widget) const {
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    if (control == CC_ComboBox && option != nullptr && LacksEdges(*option))
        DrawEdge(*painter, *option, false);
}

}  // namespace kelvor
