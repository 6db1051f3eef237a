#pragma once

#include <string_view>
#include <vector>

#include "platform/file_system.h"

namespace kelvor {

/// The folder of the running executable.
Path ExecutableFolder();

/// Where a module of the program may lie: beside the executable, where the build puts it, where an
/// installation has it.
std::vector<Path> ModulePlaces(std::string_view module);

}  // namespace kelvor
