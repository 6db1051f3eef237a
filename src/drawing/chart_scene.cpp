#include "drawing/chart_scene.h"

#include "drawing/plot_scene.h"

namespace kelvor {

Scene MakeChartScene(const ChartData& sheet, const DrawingSize& size, const Ink& ink) {
    return sheet.kind == ChartKind::Section ? MakeSectionScene(sheet, size, ink)
                                            : MakePlotScene(sheet, size, ink);
}

}  // namespace kelvor
