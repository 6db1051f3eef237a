#pragma once

#include <optional>

#include "platform/user_folders.h"
#include "shell/home.h"

namespace kelvor {

/// The home of a program that was not told one: the folder of its executable if that is a home, as in a
/// build. Else the program is installed, and each user has a home of his own among his data, with his
/// projects among his documents or where `Projects` in his `kvor.ini` says.
class HomeChoice {
  public:
    HomeChoice(FileSystem& files, Path executableFolder, UserFolders user);

    /// Where what was installed lies, which homes are made of; nothing if the program is not installed.
    [[nodiscard]] std::optional<Path> Installed() const;

    /// For a window: makes the user's home if he has none, and renews it after an upgrade. Throws FileError.
    [[nodiscard]] Home ForWindow();

    /// For a script: the user's home if he has one, renewed after an upgrade; else a copy of what is
    /// installed in `scratch`, a folder of the process's own. Throws FileError.
    [[nodiscard]] Home ForScript(const Path& scratch);

  private:
    [[nodiscard]] Path UserHome() const { return user_.data / "kelvor"; }
    [[nodiscard]] Home OwnHome(const Path& installed);

    FileSystem& files_;
    Path executableFolder_;
    UserFolders user_;
};

}  // namespace kelvor
