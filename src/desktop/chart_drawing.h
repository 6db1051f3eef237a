#pragma once

#include <QChart>

#include "forms/chart.h"

namespace kelvor {

/// Replaces all that a chart draws by a data sheet.
void DrawChart(const ChartData& data, QChart& chart);

/// The data sheet of a chart as it is drawn. Which cells are empty, and whether there is a ceiling, is known
/// from what was to be drawn.
ChartData ReadChart(const ChartData& shown, const QChart& chart);

}  // namespace kelvor
