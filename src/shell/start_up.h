#pragma once

#include <string>

#include "shell/process_state.h"

namespace kelvor {

enum class StartResult {
    Running,      // the program is up; a project is open, unless the one named was refused
    FileMissing,  // the file named on the command line is absent: an empty main window, no project
    Stopped,      // the start failed, with its message
};

/// Turns a bare process into a running program: finds the configuration, proves the components, opens
/// the two databases that ship with the program, and opens a fresh project or the one that the command
/// line names (double quotes in it are dropped). Every failure has its message.
StartResult Main(ProcessState& state, const std::string& commandLine);

}  // namespace kelvor
