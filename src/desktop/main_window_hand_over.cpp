// A project that a second start has handed over.

#include <QApplication>
#include <chrono>
#include <utility>

#include "desktop/main_window.h"

namespace kelvor {

namespace {

constexpr std::chrono::milliseconds kBetweenLooks{100};

/// A box or a menu is up: what it stands on must stay as long as it does.
bool IsAnswerAwaited() {
    return QApplication::activeModalWidget() != nullptr || QApplication::activePopupWidget() != nullptr;
}

}  // namespace

void MainWindow::OpenHandedOver(const std::string& project) {
    handedOver_ = project;
    raise();
    activateWindow();
    OpenWhatWaits();
}

/// While a box is up the project waits; of several the last one is opened.
void MainWindow::OpenWhatWaits() {
    if (handedOver_.empty()) return;
    if (door_.busy() || IsAnswerAwaited()) {
        handOverTimer_.start(kBetweenLooks);
        return;
    }
    door_.Raise({UserEvent::Kind::OpenFile, {}, std::exchange(handedOver_, {}), 0});
}

}  // namespace kelvor
