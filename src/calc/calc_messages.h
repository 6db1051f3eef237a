#pragma once

#include "platform/dialogs.h"

namespace kelvor {

/// Shows that an equation had a value out of its range.
void ReportMathOverflow(Dialogs& dialogs);

/// Shows that the inputs lie outside of what an equation can answer.
void ReportOutsideBounds(Dialogs& dialogs);

}  // namespace kelvor
