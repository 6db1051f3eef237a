#pragma once

#include <string>

#include "shell/process_state.h"

namespace kelvor {

/// Records that a project was opened or saved: its row takes the present time, or, if it has none, a
/// free row or else the oldest takes the path. The rows are then numbered from the newest, free ones last.
/// The match is `Like`, so a path with wild cards matches loosely. Failures are ignored.
void AddRecentFile(ProcessState& state, const std::string& path);

}  // namespace kelvor
