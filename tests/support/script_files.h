#pragma once

#include <string>
#include <vector>

#include "platform/file_system.h"

namespace kelvor::test {

/// The folder of the scripts that are run by the model and by the windows.
Path ScriptFolder();

/// Every script below it, as <screen>/<case>, sorted.
std::vector<std::string> ScriptNames();

/// A text with every occurrence of another one replaced.
std::string ReplaceAll(std::string text, const std::string& from, const std::string& to);

}  // namespace kelvor::test
