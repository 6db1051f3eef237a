#pragma once

#include <string>

#include "shell/process_state.h"

namespace kelvor {

/// Records that a project was opened or saved: its row takes the present time, or, if it has none, a
/// free row or else the oldest takes the path. The rows are then numbered from the newest, free ones last.
/// The match is `Like`, so a path with wild cards matches loosely. Failures are ignored.
void AddRecentFile(ProcessState& state, const std::string& path);

/// The path at a position of the menu; empty if the position is free. Throws DatabaseError.
std::string RecentFileAt(ProcessState& state, int position);

/// Frees the row at a position of the menu: it becomes ten years older and sinks to the end. Failures are
/// ignored.
void DropRecentFile(ProcessState& state, int position);

/// Makes what the menu shows follow the table. A table that cannot be read leaves an empty menu.
void RebuildRecentMenu(ProcessState& state);

}  // namespace kelvor
