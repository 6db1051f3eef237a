#include "platform/user_folders.h"

#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstddef>
#include <cstdlib>
#include <sstream>
#include <string_view>
#include <system_error>

#include "platform/system_reason.h"
#include "platform/text.h"

namespace kelvor {

namespace {

constexpr std::size_t kLargestSettings = 65536;
constexpr mode_t kOwnerAlone = 0700;

/// What is no path from the root is passed over.
Path Absolute(const std::string& text) {
    const Path path = text;
    return path.is_absolute() ? path : Path();
}

Path HomeFolder(const Environment& environment) {
    const Path told = Absolute(environment("HOME"));
    if (!told.empty()) return told;
    const passwd* user = ::getpwuid(::getuid());
    return user == nullptr ? Path() : Absolute(user->pw_dir);
}

/// The folder that a line `XDG_DOCUMENTS_DIR="$HOME/Papers"` names; empty for any other line.
Path DocumentsOf(std::string_view line, const Path& home) {
    constexpr std::string_view kStart = "XDG_DOCUMENTS_DIR=\"";
    constexpr std::string_view kHome = "$HOME/";
    line = TrimBlanks(line);
    if (!line.starts_with(kStart) || !line.ends_with('"') || line.size() <= kStart.size()) return {};
    const std::string_view value = line.substr(kStart.size(), line.size() - kStart.size() - 1);
    if (value.starts_with(kHome)) return home / value.substr(kHome.size());
    return Absolute(std::string(value));
}

/// The folder of documents that the user has chosen for all programs; empty if none was.
Path ChosenDocuments(const FileSystem& files, const Environment& environment, const Path& home) {
    Path settings = Absolute(environment("XDG_CONFIG_HOME"));
    if (settings.empty()) settings = home / ".config";
    try {
        std::istringstream lines(files.Read(settings / "user-dirs.dirs", kLargestSettings));
        Path documents;
        for (std::string line; std::getline(lines, line);) {
            if (Path found = DocumentsOf(line, home); !found.empty()) documents = std::move(found);
        }
        return documents;
    } catch (const FileError&) {
        return {};
    }
}

}  // namespace

Environment OwnEnvironment() {
    return [](const char* variable) {
        const char* value = std::getenv(variable);
        return std::string(value == nullptr ? "" : value);
    };
}

UserFolders FindUserFolders(const FileSystem& files, const Environment& environment) {
    const Path home = HomeFolder(environment);
    if (home.empty()) return {};
    UserFolders folders{Absolute(environment("XDG_DATA_HOME")), ChosenDocuments(files, environment, home)};
    if (folders.data.empty()) folders.data = home / ".local" / "share";
    if (folders.documents.empty()) folders.documents = home / "Documents";
    return folders;
}

void MakePrivateFolders(const Path& folder) {
    std::error_code ignored;  // what cannot be looked at cannot be made either, and that says why
    if (folder.empty() || std::filesystem::is_directory(folder, ignored)) return;
    MakePrivateFolders(folder.parent_path());
    if (::mkdir(folder.c_str(), kOwnerAlone) != 0 && errno != EEXIST) {
        throw FileError(folder.string() + ": " + SystemReason(errno));
    }
}

}  // namespace kelvor
