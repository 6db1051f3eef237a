// What the main window remembers from one start to the next.

#include <QMdiSubWindow>

#include "desktop/main_window.h"
#include "desktop/qt_text.h"

namespace kelvor {

void MainWindow::RestoreLook() {
    actions_->overview().setChecked(settings_.Overview());
    if (ReportEngine* engine = program_.state().reports.engine()) engine->SetPages(settings_.Pages());
    if (const QByteArray geometry = settings_.Geometry(); !geometry.isEmpty()) restoreGeometry(geometry);
    if (const QByteArray state = settings_.State(); !state.isEmpty()) restoreState(state);
}

void MainWindow::KeepLook() {
    settings_.KeepGeometry(saveGeometry());
    settings_.KeepState(saveState());
    if (const ReportEngine* engine = program_.state().reports.engine()) settings_.KeepPages(engine->Pages());
    settings_.KeepOverview(company_->overviewWanted());
    if (program_.state().units) settings_.KeepMetric(program_.state().units->bMetric());
}

/// The size that a user has given the window of a form, which its content alone would not ask for.
void MainWindow::KeepSizeOf(const FormView& view, const QMdiSubWindow& frame) {
    if (FillsWindow(frame) || frame.isMaximized() || frame.isMinimized()) return;
    if (frame.property(kPlacedSizeProperty).toSize() == frame.size()) return;
    settings_.KeepSize(FromQt(view.objectName()), frame.size());
}

/// A new project begins in the unit system that was active when the program ended last.
void MainWindow::NewProjectMade() {
    const ProcessState& state = program_.state();
    if (!metricForNew_ || !state.sProjectFile.empty() || !state.units || state.units->bMetric()) return;
    if (!state.dbWork.IsOpen()) return;
    door_.Raise({UserEvent::Kind::Menu, "MenuUnitsMetric", {}, 0});
}

}  // namespace kelvor
