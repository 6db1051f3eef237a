#pragma once

#include <string_view>

#include "platform/file_system.h"

namespace kelvor {

/// Replaces a file's content so that a crash or a full disk at any moment leaves the old file or the
/// new one, whole: written beside the target, flushed, renamed. A link keeps pointing at its file, and
/// a file keeps its permissions, so that nobody else ever reads what a private one gets; one that is
/// write-protected stays. What was left behind beside the target goes. Throws FileError and leaves the
/// target as it was.
void ReplaceFile(FileSystem& files, const Path& target, std::string_view content);

/// Removes what replacements of a file that a crash or a kill has ended left beside it: files with the name
/// that ReplaceFile gives to those of this very target, and that no process holds. A failure is ignored.
void RemoveLeftovers(FileSystem& files, const Path& target);

}  // namespace kelvor
