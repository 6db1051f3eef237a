#pragma once

#include <QWidget>

#include "forms/control.h"

namespace kelvor {

/// Draws the chart of a control.
QWidget* MakeChart(const Control& control, QWidget* parent);

/// The data sheet of a chart as it is drawn.
ChartData DrawnChart(const QWidget& chart);

}  // namespace kelvor
