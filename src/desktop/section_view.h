#pragma once

#include <QWidget>

#include "forms/chart.h"

namespace kelvor {

/// Shows the section of a pavement, as large as its room, in the colours of the window.
class SectionView : public QWidget {
  public:
    /// At least so many letters wide.
    SectionView(const ChartData& sheet, double letters, QWidget* parent);

    void Show(const ChartData& sheet);

    [[nodiscard]] const ChartData& shown() const { return shown_; }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    ChartData shown_;
};

}  // namespace kelvor
