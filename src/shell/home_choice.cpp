#include "shell/home_choice.h"

#include <system_error>
#include <utility>

#include "home/home_renewal.h"
#include "home/shipped_parts.h"
#include "platform/ini_file.h"
#include "platform/translation.h"

namespace kelvor {

namespace {

/// Copies what a home has of an installed folder.
Path CopyParts(const FileSystem& files, const Path& installed, const Path& target) {
    constexpr std::size_t kLargestList = 65536;
    const ShippedParts shipped(files.Read(installed / ShippedParts::kListName, kLargestList));
    for (const ShippedPart& part : shipped.parts()) {
        std::error_code error;
        std::filesystem::create_directories((target / part.name).parent_path(), error);
        if (!error) std::filesystem::copy_file(installed / part.name, target / part.name, error);
        if (error) throw FileError((installed / part.name).string() + ": " + error.message());
    }
    return target;
}

}  // namespace

HomeChoice::HomeChoice(FileSystem& files, Path executableFolder, UserFolders user)
    : files_(files), executableFolder_(std::move(executableFolder)), user_(std::move(user)) {}

std::optional<Path> HomeChoice::Installed() const {
    if (IsHome(files_, executableFolder_)) return std::nullopt;
    const Path folder = (executableFolder_ / KELVOR_DATA_FROM_PROGRAMS).lexically_normal();
    if (files_.Kind(folder / ShippedParts::kListName) != FileKind::Regular) return std::nullopt;
    return folder;
}

Home HomeChoice::OwnHome(const Path& installed) {
    if (user_.data.empty()) throw FileError(Translated("Nothing tells where the user's home folder is."));
    MakeOrRenewHome(files_, installed, UserHome());
    Home home{UserHome(), UserHome(), user_.documents / "Kelvor", installed};
    const Path chosen = ReadIni(files_, kIniSection, "Projects", home.IniFile());
    if (chosen.is_absolute()) home.projects = chosen;
    return home;
}

Home HomeChoice::ForWindow() {
    const auto installed = Installed();
    return installed ? OwnHome(*installed) : Home{executableFolder_, executableFolder_};
}

Home HomeChoice::ForScript(const Path& scratch) {
    const auto installed = Installed();
    if (!installed) return {executableFolder_, executableFolder_};
    if (!user_.data.empty() && IsHome(files_, UserHome())) return OwnHome(*installed);
    const Path copy = CopyParts(files_, *installed, scratch / "home");
    return {.folder = copy, .work = copy, .shared = *installed};
}

}  // namespace kelvor
