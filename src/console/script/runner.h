#pragma once

#include <iosfwd>
#include <string>

#include "console/script/driver.h"
#include "console/script/output.h"

namespace kelvor {

/// How a script ended; the values are the exit statuses of kelvor-cli.
enum class ScriptEnd {
    Done = 0,
    ProgramStopped = 1,
    NotUnderstood = 2,
};

/// Obeys the commands of a script, one a line, until its end or the first that is not understood, which
/// is reported on `errors` with its line number. A stop of the program ends it too.
ScriptEnd RunScript(std::istream& script, Driver& driver, Output& output, std::ostream& errors);

/// Obeys one line. Throws ScriptError if it is not understood.
void RunLine(const std::string& line, Driver& driver, Output& output);

}  // namespace kelvor
