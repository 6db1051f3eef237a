#pragma once

#include <QLabel>

#include "forms/control.h"

namespace kelvor {

/// What a preview has to say of its report: its title, or why it could not be filled.
class ReportPagesView : public QLabel {
  public:
    explicit ReportPagesView(QWidget* parent);
};

}  // namespace kelvor
