#pragma once

#include <string>

#include "platform/dialogs.h"

namespace kelvor {

/// Shows that an equation had a value out of its range.
void ReportMathOverflow(Dialogs& dialogs);

/// Shows that the inputs lie outside of what an equation can answer.
void ReportOutsideBounds(Dialogs& dialogs);

/// Shows a failure that has no message of its own.
void ShowError(Dialogs& dialogs, const std::string& procedure, int number, const std::string& description);

}  // namespace kelvor
