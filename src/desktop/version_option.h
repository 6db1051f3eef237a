#pragma once

#include <vector>

#include "platform/version.h"

namespace kelvor {

/// The toolkit, as it is loaded.
std::vector<Library> ToolkitLibraries();

/// Prints version, commit and libraries if the command line asks for them; false if it does not. Takes no
/// display.
bool TellVersion(int argc, char** argv);

}  // namespace kelvor
