#pragma once

#include <cairo.h>

#include "drawing/scene.h"

namespace kelvor {

/// Paints a drawing on a surface of whatever kind, a point of the drawing as a unit of the surface as it is
/// scaled then: a picture, or a place on a page.
void PaintScene(cairo_t* canvas, const Scene& scene);

}  // namespace kelvor
