#pragma once

#include "drawing/scene.h"
#include "drawing/section_scene.h"
#include "forms/chart.h"

namespace kelvor {

/// Draws the data sheet of a chart of lines, points or bars, with its axes and, for several series, a legend.
Scene MakePlotScene(const ChartData& sheet, const DrawingSize& size, const Ink& ink = {});

}  // namespace kelvor
