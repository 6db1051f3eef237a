#include "reports/run/waiting.h"

namespace kelvor {

WaitCursor::WaitCursor(Dialogs& dialogs) : dialogs_(dialogs) { dialogs_.SetWaitCursor(true); }

WaitCursor::~WaitCursor() { dialogs_.SetWaitCursor(false); }

PleaseWait::PleaseWait(Dialogs& dialogs, const std::string& text, std::size_t steps)
    : dialogs_(dialogs), steps_(steps) {
    dialogs_.ShowWait({.text = text, .done = 0, .steps = steps_});
}

PleaseWait::~PleaseWait() { dialogs_.HideWait(); }

void PleaseWait::Step(std::size_t step, const std::string& text) {
    dialogs_.ShowWait({.text = text, .done = step - 1, .steps = steps_});
}

}  // namespace kelvor
