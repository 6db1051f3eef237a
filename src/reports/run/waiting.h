#pragma once

#include <string>

#include "platform/dialogs.h"

namespace kelvor {

/// The hourglass, as long as it lives.
class WaitCursor {
  public:
    explicit WaitCursor(Dialogs& dialogs);
    WaitCursor(const WaitCursor&) = delete;
    WaitCursor& operator=(const WaitCursor&) = delete;
    ~WaitCursor();

  private:
    Dialogs& dialogs_;
};

/// The form `PleaseWait`, as long as it lives.
class PleaseWait {
  public:
    /// Shown with a text, for so many steps to come.
    PleaseWait(Dialogs& dialogs, const std::string& text, std::size_t steps);
    PleaseWait(const PleaseWait&) = delete;
    PleaseWait& operator=(const PleaseWait&) = delete;
    ~PleaseWait();

    /// Another text may come with a step that begins, from 1.
    void Step(std::size_t step, const std::string& text);

  private:
    Dialogs& dialogs_;
    std::size_t steps_;
};

}  // namespace kelvor
