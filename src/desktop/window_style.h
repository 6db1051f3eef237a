#pragma once

#include <QProxyStyle>

namespace kelvor {

/// The style of the system with two things mended: the caption bar of a screen is as high as its letters, and
/// where a palette of high contrast leaves no shade for edges, boxes, buttons and marks get edges in the
/// colour of the text.
class WindowStyle : public QProxyStyle {
  public:
    /// Makes it the style of the application, unless it is already.
    static void Use();

    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override;
};

}  // namespace kelvor
