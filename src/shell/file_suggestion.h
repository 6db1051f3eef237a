#pragma once

#include "platform/file_system.h"

namespace kelvor {

struct ProcessState;

/// The name or the path that Save As offers for the project: the name of its file; of one that was recovered,
/// or began as a sample, the path or the name that it had; of any other, what the tab Project ID calls it.
/// Empty if nothing is known of it.
Path SuggestedProjectFile(const ProcessState& state);

}  // namespace kelvor
