#pragma once

#include "platform/file_system.h"

namespace kelvor {

/// What became of a user's home when a program started.
enum class HomeState {
    AsItWas,  // it holds what is installed, or another program works in it, and the next start renews it
    Renewed,  // another version of the program was installed since
    Made,     // there was none
};

/// Makes a user's home of what is installed, or, if what is installed has changed since, renews it: the
/// catalogue, the template and the layouts of reports are again as shipped; recent files, lists and settings
/// are the user's and stay. A layout or template that he has changed is kept beside the new one, with "~"
/// behind its name. An interrupted renewal is taken up by the next start. Throws FileError with the path.
HomeState MakeOrRenewHome(FileSystem& files, const Path& installed, const Path& home);

/// True if a folder has what a program needs of its home.
bool IsHome(const FileSystem& files, const Path& folder);

}  // namespace kelvor
