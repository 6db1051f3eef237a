#pragma once

#include <map>
#include <string>

#include "platform/file_system.h"

namespace kelvor {

/// The help of a variable: its heading, and what is said below.
struct HelpText {
    std::string head;
    std::string text;
};

/// Reads the help of each variable from the folder's file of its name (`SN.txt`): the heading in the first
/// line, an empty line, the text. Throws FileError, or TextTableError for a file without one of them.
std::map<std::string, HelpText> ReadHelpTexts(const Path& folder);

}  // namespace kelvor
