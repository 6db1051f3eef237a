#pragma once

#include <vector>

#include "forms/overview_line.h"
#include "shell/process_state.h"

namespace kelvor {

/// A line for each screen that holds data of its own, the one that was changed last first; those that have
/// not changed since the project was opened follow in the order of the work. Empty with no project open. The
/// screen that compares a flexible and a rigid design has no line: it shows the cells of the two.
std::vector<OverviewLine> MakeOverview(ProcessState& state);

}  // namespace kelvor
