#pragma once

#include "platform/file_system.h"

namespace kelvor {

/// The folder of the running executable.
Path ExecutableFolder();

}  // namespace kelvor
