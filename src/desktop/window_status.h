#pragma once

#include <QLabel>
#include <QStatusBar>

#include "desktop/form_view.h"
#include "shell/program.h"

namespace kelvor {

/// The line at the foot of the main window: what the field in focus wants, the figures of a block of cells
/// that is marked, and how the document stands.
class WindowStatus : public QStatusBar {
  public:
    explicit WindowStatus(QWidget* parent);

    void Sync(Program& program, const FormView* view);

    /// The sum and the mean of what is marked in the grid of a form's window.
    void ShowFigures(const FormView* view);

    /// Says in place of the hint, until the next event, why the overview does not appear.
    void ShowNoRoom();

  private:
    void ShowHint(Program& program);
    void ShowDocument(const ProcessState& state);

    QLabel* hint_;
    QLabel* figures_;
    QLabel* document_;
    int saves_ = 0;      // that have been told of
    int projects_ = -1;  // the project of which the last save was
};

/// The name of the open project's file, without its folder; of an unnamed one a text that says so.
QString DocumentName(const ProcessState& state);

}  // namespace kelvor
