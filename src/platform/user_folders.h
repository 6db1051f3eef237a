#pragma once

#include <functional>
#include <string>

#include "platform/file_system.h"

namespace kelvor {

/// What a variable of the environment says; empty if it is not set.
using Environment = std::function<std::string(const char* variable)>;

/// The environment of this process.
Environment OwnEnvironment();

/// Where desktops keep what belongs to one user (XDG base directories, and the folders of
/// xdg-user-dirs). All are empty for a user without a home folder.
struct UserFolders {
    Path data;       // of programs: $XDG_DATA_HOME, or .local/share of the user's home
    Path documents;  // as user-dirs.dirs has it, or Documents of the user's home
};

/// The folders of the user whom an environment tells, by HOME, or else of the user who runs this process.
UserFolders FindUserFolders(const FileSystem& files, const Environment& environment);

/// Makes a folder and those above it that are missing, for their owner alone. Throws FileError.
void MakePrivateFolders(const Path& folder);

}  // namespace kelvor
