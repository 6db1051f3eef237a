#pragma once

#include <QWidget>

#include "forms/control.h"

namespace kelvor {

/// Draws a chart or the section of a pavement, as large as its room, in the colours and the size of letters
/// of the window: the very drawing that reports and picture files have.
class ChartView : public QWidget {
  public:
    /// At least so many letters wide; 0: as is usual.
    ChartView(const ChartData& sheet, double letters, QWidget* parent);

    void Show(const ChartData& sheet);

    /// The data sheet that is drawn, with all that its control had.
    [[nodiscard]] const ChartData& shown() const { return shown_; }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    [[nodiscard]] double PixelsOfPoint() const;

    ChartData shown_;
};

/// Makes the widget that draws the chart of a control.
QWidget* MakeChart(const Control& control, QWidget* parent);

/// Draws what the control's chart holds now; what is the same is not touched.
void MirrorChart(const Control& control, QWidget& widget);

}  // namespace kelvor
