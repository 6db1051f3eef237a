#pragma once

#include <string>

#include "drawing/scene.h"

namespace kelvor {

/// A drawing as a file in the format SVG 1.1, as large as the drawing. A named rectangle has its name as the
/// title that a viewer shows over it.
std::string ToSvg(const Scene& scene);

/// The same to stand in an HTML page: without the declaration that only a file of its own has.
std::string ToInlineSvg(const Scene& scene);

}  // namespace kelvor
