#pragma once

#include <QPointer>
#include <QWidget>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "desktop/help_window.h"
#include "desktop/print_system.h"
#include "desktop/wait_box.h"
#include "platform/dialogs.h"

namespace kelvor {

/// Message boxes, input boxes and file dialogs on the screen. Each runs an event loop of its own and returns
/// when the user has answered.
class QtDialogs : public Dialogs {
  public:
    explicit QtDialogs(std::unique_ptr<PrintSystem> printers) : printers_(std::move(printers)) {}

    /// The window in front of which they stand, once there is one.
    void SetParent(QWidget* parent) { parent_ = parent; }

    Answer ShowMessage(const Message& message) override;
    std::optional<std::string> AskText(const InputRequest& request) override;
    std::optional<Path> AskFile(const FileRequest& request) override;
    void SetWaitCursor(bool on) override;
    void ShowWait(const WaitNotice& notice) override;
    void HideWait() override;
    std::optional<std::string> Print(const PrintRequest& request) override;
    void ShowHelp(const HelpRequest& request) override;

    /// The window of the help; null until it was asked for.
    [[nodiscard]] HelpWindow* helpWindow() const { return help_.get(); }

  private:
    std::unique_ptr<PrintSystem> printers_;
    QPointer<QWidget> parent_;
    std::unique_ptr<HelpWindow> help_;
    std::unique_ptr<WaitBox> wait_;
    bool waiting_ = false;
};

}  // namespace kelvor
