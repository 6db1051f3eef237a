#pragma once

#include "calc/dispatch.h"

namespace kelvor {

/// All calculations of the program: the one place that joins the folders' key tables.
Dispatch JoinCalculations();

}  // namespace kelvor
