#pragma once

#include <iosfwd>

namespace kelvor {

/// The whole of kelvor-cli: reads the options, starts the program, obeys the script. Gives the exit
/// status: 0 every command ran; 1 the program stopped; 2 an option or command is not understood.
int RunConsole(int argc, char** argv, std::istream& input, std::ostream& output, std::ostream& errors);

}  // namespace kelvor
