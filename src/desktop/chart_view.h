#pragma once

#include <QWidget>

#include "forms/control.h"

namespace kelvor {

/// Makes the widget that draws the chart of a control.
QWidget* MakeChart(const Control& control, QWidget* parent);

/// Draws what the control's chart holds now; what is the same is not touched.
void MirrorChart(const Control& control, QWidget& widget);

/// The data sheet of a chart as it is drawn, for tests.
ChartData DrawnChart(const QWidget& widget);

/// The data sheet that a chart shows, with all that its control had.
const ChartData& ShownChart(const QWidget& widget);

}  // namespace kelvor
