#pragma once

#include <QTimer>
#include <future>
#include <memory>
#include <string>

#include "desktop/hand_over.h"
#include "desktop/main_window.h"
#include "desktop/print_system.h"
#include "desktop/qt_dialogs.h"
#include "desktop/window_language.h"
#include "platform/clock.h"
#include "platform/component_probe.h"
#include "platform/file_system.h"

namespace kelvor {

/// The program with its windows, composed.
class DesktopProgram {
  public:
    explicit DesktopProgram(const Home& home,
                            std::unique_ptr<PrintSystem> printers = std::make_unique<LpPrintSystem>());

    /// Starts, with the project of a path if it is not empty, and shows the main window. False if the start
    /// failed; the message was shown.
    bool Start(const std::string& project);

    [[nodiscard]] Program& program() { return program_; }

    /// The window of the help; null until it was asked for.
    [[nodiscard]] HelpWindow* helpWindow() const { return dialogs_.helpWindow(); }

    /// Only after a start that did not fail.
    [[nodiscard]] MainWindow& window() { return *window_; }

  private:
    std::future<void> fonts_;  // of the system, read in while the program reads its own files
    NativeFileSystem files_;
    WindowLanguage language_;  // before anything is said
    SystemClock clock_;
    QtDialogs dialogs_;
    LinkedComponents components_;
    Program program_;
    std::unique_ptr<MainWindow> window_;
    QTimer disk_;  // brings the work copy to the disk now and then, so that a power cut costs little
    std::unique_ptr<HandOverBox> handOver_;
};

/// `kelvor [--home DIR] [PROJECT.kvr]`. Returns the exit status: 0 the user left, 1 the start failed or the
/// program stopped, 2 an option is not understood.
int RunDesktop(int argc, char** argv);

}  // namespace kelvor
