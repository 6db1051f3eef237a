#include "home/home_renewal.h"

#include <chrono>
#include <cstddef>
#include <memory>
#include <string>
#include <thread>

#include "home/home_databases.h"
#include "home/shipped_parts.h"
#include "platform/database_error.h"
#include "platform/file_lock.h"
#include "platform/replace_file.h"
#include "platform/translation.h"
#include "platform/user_folders.h"

namespace kelvor {

namespace {

const char* const kSettings = "kvor.ini";
const char* const kCatalogue = "DataBase/Kelvor.mdb";
const char* const kLists = "DataBase/custom.tpl";
const char* const kLock =
    "kvrwork.lck";  // that of the work copy: nothing is renewed under a program that runs
const char* const kTurn = "kvrhome.lck";  // held by the start that makes or renews the home
constexpr std::chrono::seconds kLongestRenewal{20};

/// One renewal of one home.
class Renewal {
  public:
    Renewal(FileSystem& files, const Path& installed, const Path& home)
        : files_(files),
          installed_(installed),
          home_(home),
          shipped_(ListOf(installed)),
          former_(ListOf(home)) {}

    [[nodiscard]] bool IsDue() const { return !IsHome(files_, home_) || shipped_.text() != former_.text(); }

    /// The settings come last but one, as they tell that there is a home; then the list, which tells that it
    /// is whole.
    void Run() {
        for (const ShippedPart& part : shipped_.parts()) {
            if (part.name != kSettings) RenewPart(part);
        }
        if (Missing(home_ / kSettings)) Put(kSettings, Installed(kSettings));
        Put(ShippedParts::kListName, shipped_.text());
    }

  private:
    [[nodiscard]] ShippedParts ListOf(const Path& folder) const {
        const Path list = folder / ShippedParts::kListName;
        return ShippedParts(Missing(list) ? std::string() : files_.Read(list, kLargestPart));
    }

    [[nodiscard]] bool Missing(const Path& path) const { return files_.Kind(path) == FileKind::Missing; }

    [[nodiscard]] std::string Installed(const std::string& name) const {
        return files_.Read(installed_ / name, kLargestPart);
    }

    void Put(const std::string& name, const std::string& content) {
        ReplaceFile(files_, home_ / name, content);
    }

    void RenewPart(const ShippedPart& part) {
        const Path own = home_ / part.name;
        MakePrivateFolders(own.parent_path());
        if (Missing(own)) return Put(part.name, Installed(part.name));
        if (part.mark == former_.MarkOf(part.name))
            return;  // shipped as before: his copy serves, changed or not
        const std::string content = files_.Read(own, kLargestPart);
        const std::string mark = ContentMark(content);
        if (mark == part.mark) return;
        if (part.name == kCatalogue) return RenewCatalogue(own);
        if (part.name == kLists) return RenewOwnLists(own);
        // A copy that the user has not changed is replaced; one that he has is kept beside.
        if (mark != former_.MarkOf(part.name)) ReplaceFile(files_, FreeNameBeside(own), content);
        Put(part.name, Installed(part.name));
    }

    [[nodiscard]] Path FreeNameBeside(const Path& file) const {
        Path name = file.string() + "~";
        for (int count = 2; !Missing(name); ++count) name = file.string() + "~" + std::to_string(count);
        return name;
    }

    /// The new catalogue gets the recent files of the old one before it takes its place. One that cannot be
    /// read has none.
    void RenewCatalogue(const Path& own) {
        const Path next = own.string() + ".next";
        files_.Write(next, Installed(kCatalogue));
        try {
            SettleDatabase(own);
            CarryRecentFiles(own, next);
        } catch (const DatabaseError&) {
            files_.Write(next, Installed(kCatalogue));
        }
        TakePlace(next, own);
    }

    /// Lists that cannot be read are kept beside those that ship.
    void RenewOwnLists(const Path& own) {
        const Path next = own.string() + ".next";
        try {
            SettleDatabase(own);
            files_.Write(next, files_.Read(own, kLargestPart));
            RenewLists(installed_ / kLists, next);
        } catch (const DatabaseError&) {
            ReplaceFile(files_, FreeNameBeside(own), files_.Read(own, kLargestPart));
            files_.Write(next, Installed(kLists));
        }
        TakePlace(next, own);
    }

    void TakePlace(const Path& next, const Path& own) {
        // The journal of a database that could not be read would be played into the new one.
        const Path journal = own.string() + "-journal";
        if (!Missing(journal)) files_.Remove(journal);
        ReplaceFile(files_, own, files_.Read(next, kLargestPart));
        files_.Remove(next);
    }

    FileSystem& files_;
    Path installed_;
    Path home_;
    ShippedParts shipped_;
    ShippedParts former_;
};

/// The lock of whose turn it is. It does not hold if another start takes longer than any renewal does.
std::unique_ptr<FileLock> AwaitTurn(const Path& path) {
    constexpr std::chrono::milliseconds kPause{10};
    const auto end = std::chrono::steady_clock::now() + kLongestRenewal;
    auto turn = std::make_unique<FileLock>(path);
    while (!turn->holds() && std::chrono::steady_clock::now() < end) {
        std::this_thread::sleep_for(kPause);
        turn = std::make_unique<FileLock>(path);
    }
    return turn;
}

}  // namespace

bool IsHome(const FileSystem& files, const Path& folder) {
    return files.Kind(folder / kSettings) == FileKind::Regular;
}

HomeState MakeOrRenewHome(FileSystem& files, const Path& installed, const Path& home) {
    const bool isNew = !IsHome(files, home);
    try {
        if (!Renewal(files, installed, home).IsDue()) return HomeState::AsItWas;
        MakePrivateFolders(home);
        // Of two starts at the same moment one makes the home; the other waits, and finds it whole.
        const std::unique_ptr<FileLock> turn = AwaitTurn(home / kTurn);
        if (!turn->holds() && !IsHome(files, home))
            throw FileError(Translated("another start is still at it"));
        if (!turn->holds() || !Renewal(files, installed, home).IsDue()) return HomeState::AsItWas;
        const FileLock lock(home / kLock);
        if (!lock.holds()) return HomeState::AsItWas;
        Renewal(files, installed, home).Run();
    } catch (const FileError& failure) {
        throw FileError(Filled(Translated("The folder %1 of the program cannot be made ready: %2"),
                               {home.string(), failure.what()}));
    }
    return isNew ? HomeState::Made : HomeState::Renewed;
}

}  // namespace kelvor
