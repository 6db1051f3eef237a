#pragma once

#include "drawing/scene.h"
#include "drawing/section_scene.h"
#include "forms/chart.h"

namespace kelvor {

/// Draws a chart from its data sheet, of whatever kind it is.
Scene MakeChartScene(const ChartData& sheet, const DrawingSize& size = {}, const Ink& ink = {});

}  // namespace kelvor
