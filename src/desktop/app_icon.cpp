#include "desktop/app_icon.h"

#include <QPainter>
#include <QPainterPath>

namespace kelvor {

namespace {

/// A layer of the section: its depth in tenths of the sign's height, and its colour.
struct Layer {
    double depth;
    QRgb colour;
};

constexpr Layer kLayers[] = {
    {1.6, 0xFF2B2F36},  // wearing course
    {2.0, 0xFF5B626C},  // binder course
    {2.6, 0xFFB9A98C},  // base
    {3.8, 0xFF8A6A45},  // subgrade
};

QPixmap DrawSign(int size) {
    QPixmap sign(size, size);
    sign.fill(Qt::transparent);
    QPainter painter(&sign);
    painter.setRenderHint(QPainter::Antialiasing);
    QPainterPath frame;
    frame.addRoundedRect(QRectF(0, 0, size, size), size / 8.0, size / 8.0);
    painter.setClipPath(frame);
    double top = 0.0;
    for (const Layer& layer : kLayers) {
        const double height = layer.depth * size / 10.0;
        painter.fillRect(QRectF(0, top, size, height + 1), QColor::fromRgba(layer.colour));
        top += height;
    }
    // The line of the road.
    painter.fillRect(QRectF(size * 0.2, size * 0.05, size * 0.6, size * 0.05), QColor(0xF2, 0xC1, 0x2E));
    return sign;
}

}  // namespace

QIcon AppIcon() {
    QIcon icon;
    for (const int size : {16, 24, 32, 48, 64, 128}) icon.addPixmap(DrawSign(size));
    return icon;
}

}  // namespace kelvor
