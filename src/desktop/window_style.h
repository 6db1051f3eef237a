#pragma once

#include <QProxyStyle>

namespace kelvor {

/// The style of the system with three things mended: the caption bar of a screen is as high as its letters;
/// where a palette of high contrast leaves no shade for edges, boxes, buttons, marks, captions and cells get
/// edges in the colour of the text, and what has the focus one in the colour of what is chosen; and what is
/// chosen in a list or table without the focus is paler than in the one that the keys go to.
class WindowStyle : public QProxyStyle {
  public:
    /// Makes it the style of the application, unless it is already.
    static void Use();

    using QProxyStyle::polish;
    void polish(QPalette& palette) override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* more) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override;
};

}  // namespace kelvor
