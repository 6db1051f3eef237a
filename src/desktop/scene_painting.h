#pragma once

#include <QImage>
#include <QPainter>
#include <QPalette>

#include "drawing/scene.h"

namespace kelvor {

inline constexpr double kPointsOfInch = 72.0;

/// Paints a drawing in the letters of a font's family, a point of the drawing as a unit of the painter.
void PaintScene(QPainter& painter, const Scene& scene);

/// A drawing as a picture.
QImage PictureOf(const Scene& scene, double dotsOfInch);

/// The ink and the paper of a window.
Ink InkOf(const QPalette& palette);

}  // namespace kelvor
