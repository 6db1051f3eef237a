#pragma once

#include "drawing/scene.h"
#include "forms/chart.h"

namespace kelvor {

/// How large a drawing is, in points.
struct DrawingSize {
    double width = 480.0;
    double height = 330.0;
};

/// Draws the data sheet of a section as engineers draw a pavement: the layers in the ratio of their
/// thicknesses with the hatch of what they are made of, each with its label beside it, the thicknesses and
/// their total between dimension lines, and a legend. A layer without thickness leaves no trace. Two sections
/// of one size of which one has the total of the other as its ceiling are drawn to one scale.
Scene MakeSectionScene(const ChartData& sheet, const DrawingSize& size, const Ink& ink = {});

}  // namespace kelvor
