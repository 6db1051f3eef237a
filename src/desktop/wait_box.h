#pragma once

#include <QDialog>
#include <QLabel>
#include <QProgressBar>

#include "platform/dialogs.h"

namespace kelvor {

/// `PleaseWait`: what the program is doing, and how much of it is done.
class WaitBox : public QDialog {
  public:
    explicit WaitBox(QWidget* parent);

    void Show(const WaitNotice& notice);

  private:
    QLabel* text_;
    QProgressBar* bar_;
};

}  // namespace kelvor
