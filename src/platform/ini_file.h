#pragma once

#include <string>
#include <string_view>

#include "platform/file_system.h"

namespace kelvor {

/// The value of a key in a section of a configuration file of `[section]` and `key=value` lines;
/// names compare without regard to case, a line that starts with `;` is a comment, and quotes around a
/// value are dropped. At most 255 characters; empty if file, section or key is missing.
std::string ReadIni(const FileSystem& files, std::string_view section, std::string_view key,
                    const Path& file);

/// Sets a key, with its section if that is missing, and keeps every other line. True on success.
bool WriteIni(FileSystem& files, std::string_view section, std::string_view key, std::string_view value,
              const Path& file);

}  // namespace kelvor
