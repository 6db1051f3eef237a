#include "platform/file_system.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <string>
#include <vector>

#include "platform/replace_file.h"
#include "support/child_process.h"
#include "support/file_system_doubles.h"
#include "support/test_home.h"

namespace kelvor::test {
namespace {

using std::filesystem::perms;

class FileSystemTest : public testing::Test {
  protected:
    FileSystemTest() {
        WriteFile(file_, "content");
        std::filesystem::create_directory(folder_ / "folder");
        std::filesystem::create_symlink("file", folder_ / "link");
        std::filesystem::create_directory_symlink("folder", folder_ / "folder link");
        std::filesystem::create_symlink("none", folder_ / "dangling");
        std::filesystem::create_symlink("circle", folder_ / "circle");
        if (::mkfifo((folder_ / "pipe").c_str(), 0600) != 0) throw std::runtime_error("no pipe can be made");
    }

    /// The reason that an operation fails for; empty if it does not.
    static std::string Failure(const std::function<void()>& operation) {
        try {
            operation();
            return {};
        } catch (const FileError& failure) {
            return failure.what();
        }
    }

    /// What an operation says that the platform refused for `error`.
    static std::string Reason(int error) { return std::strerror(error); }

    TemporaryFolder folder_;
    NativeFileSystem files_;
    Path file_ = folder_ / "file";
};

TEST_F(FileSystemTest, EveryPathHasItsKind) {
    EXPECT_EQ(files_.Kind(file_), FileKind::Regular);
    EXPECT_EQ(files_.Kind(folder_.path()), FileKind::Directory);
    EXPECT_EQ(files_.Kind(folder_ / "link"), FileKind::Regular);
    EXPECT_EQ(files_.Kind(folder_ / "folder link"), FileKind::Directory);
    EXPECT_EQ(files_.Kind(folder_ / "pipe"), FileKind::Other);
    EXPECT_EQ(files_.Kind("/dev/null"), FileKind::Other);
    EXPECT_EQ(files_.Kind(folder_ / "none"), FileKind::Missing);
    EXPECT_EQ(files_.Kind(folder_ / "dangling"), FileKind::Missing);
    EXPECT_EQ(files_.Kind(folder_ / "circle"), FileKind::Missing);
    EXPECT_EQ(files_.Kind(file_ / "below a file"), FileKind::Missing);
    EXPECT_EQ(files_.Kind(folder_ / std::string(1000, 'x')), FileKind::Missing);
    EXPECT_EQ(files_.Kind(""), FileKind::Missing);
}

TEST_F(FileSystemTest, AFileIsReadUpToTheLimit) {
    EXPECT_EQ(files_.Read(file_, 1000), "content");
    EXPECT_EQ(files_.Read(file_, 7), "content");
    EXPECT_EQ(Failure([&] { (void)files_.Read(file_, 6); }), Reason(EFBIG));
    EXPECT_EQ(Failure([&] { (void)files_.Read(file_, 0); }), Reason(EFBIG));
    EXPECT_THROW((void)files_.Read(file_, 6), FileTooLarge);
    EXPECT_EQ(files_.Read(folder_ / "link", 7), "content");
    WriteFile(file_, "");
    EXPECT_EQ(files_.Read(file_, 0), "");
    std::string bytes;
    for (int i = 0; i < 1000000; ++i) bytes.push_back(static_cast<char>(i * 7 % 256));
    WriteFile(file_, bytes);
    EXPECT_EQ(files_.Read(file_, 1000000), bytes);
}

TEST_F(FileSystemTest, TheStartOfAFileOfAnySizeIsRead) {
    EXPECT_EQ(files_.ReadStart(file_, 3), "con");
    EXPECT_EQ(files_.ReadStart(file_, 7), "content");
    EXPECT_EQ(files_.ReadStart(file_, 1000), "content");
    EXPECT_EQ(files_.ReadStart(file_, 0), "");
    EXPECT_EQ(files_.ReadStart(folder_ / "link", 3), "con");
    WriteFile(file_, "");
    EXPECT_EQ(files_.ReadStart(file_, 3), "");
    std::filesystem::resize_file(file_, 8UL * 1024 * 1024 * 1024);  // takes no room: nothing stands in it
    EXPECT_EQ(files_.ReadStart(file_, 3), std::string(3, '\0'));
}

TEST_F(FileSystemTest, WhatIsNoRegularFileIsNotRead) {
    EXPECT_EQ(Failure([&] { (void)files_.Read(folder_ / "none", 10); }), Reason(ENOENT));
    EXPECT_EQ(Failure([&] { (void)files_.Read(folder_ / "dangling", 10); }), Reason(ENOENT));
    EXPECT_EQ(Failure([&] { (void)files_.Read(folder_.path(), 10); }), Reason(EISDIR));
    EXPECT_EQ(Failure([&] { (void)files_.Read(file_ / "below a file", 10); }), Reason(ENOTDIR));
    // Nobody writes into the pipe: a reader that waited would wait forever.
    EXPECT_EQ(Failure([&] { (void)files_.Read(folder_ / "pipe", 10); }), "Not a regular file");
    EXPECT_EQ(Failure([&] { (void)files_.Read("/dev/zero", 10); }), "Not a regular file");
    EXPECT_EQ(Failure([&] { (void)files_.ReadStart(folder_ / "none", 10); }), Reason(ENOENT));
    EXPECT_EQ(Failure([&] { (void)files_.ReadStart(folder_.path(), 10); }), Reason(EISDIR));
    EXPECT_EQ(Failure([&] { (void)files_.ReadStart(folder_ / "pipe", 10); }), "Not a regular file");
    EXPECT_EQ(Failure([&] { (void)files_.ReadStart("/dev/zero", 10); }), "Not a regular file");
}

TEST_F(FileSystemTest, AFileIsMadeOrEmptiedAndWritten) {
    files_.Write(folder_ / "new", "abc");
    EXPECT_EQ(ReadFile(folder_ / "new"), "abc");
    files_.Write(file_, "x");
    EXPECT_EQ(ReadFile(file_), "x");
    files_.Write(file_, "");
    EXPECT_EQ(ReadFile(file_), "");
    files_.Write(folder_ / "link", "through the link");
    EXPECT_EQ(ReadFile(file_), "through the link");
    EXPECT_TRUE(std::filesystem::is_symlink(folder_ / "link"));
    const std::string zeros("a\0b\0", 4);
    files_.Write(file_, zeros);
    EXPECT_EQ(ReadFile(file_), zeros);
}

/// The umask of a user who lets everybody read and write.
class OpenUmask {
  public:
    OpenUmask() : former_(::umask(0)) {}
    OpenUmask(const OpenUmask&) = delete;
    OpenUmask& operator=(const OpenUmask&) = delete;
    ~OpenUmask() { ::umask(former_); }

  private:
    mode_t former_;
};

TEST_F(FileSystemTest, ANewFileIsOpenToItsOwnerAloneOrToWhomTheUserLets) {
    const OpenUmask open;
    const auto usual = files_.WriteNew(folder_ / "usual", "abc", FileAccess::Usual);
    EXPECT_EQ(ReadFile(folder_ / "usual"), "abc");
    EXPECT_EQ(std::filesystem::status(folder_ / "usual").permissions(), perms(0666));
    const auto secret = files_.WriteNew(folder_ / "private", "x", FileAccess::Private);
    EXPECT_EQ(ReadFile(folder_ / "private"), "x");
    EXPECT_EQ(std::filesystem::status(folder_ / "private").permissions(), perms(0600));
    EXPECT_EQ(Failure([&] { (void)files_.WriteNew(folder_ / "none" / "file", "x", FileAccess::Usual); }),
              Reason(ENOENT));
}

TEST_F(FileSystemTest, ANewFileTakesNobodysPlaceAndFollowsNoLink) {
    std::filesystem::remove(folder_ / "circle");  // no checksum can be made of it
    const std::string before = Checksum(folder_.path());
    for (const char* name : {"file", "link", "dangling", "folder", "pipe"}) {
        for (const FileAccess access : {FileAccess::Usual, FileAccess::Private}) {
            EXPECT_EQ(Failure([&] { (void)files_.WriteNew(folder_ / name, "x", access); }), Reason(EEXIST))
                << name;
        }
    }
    EXPECT_EQ(Checksum(folder_.path()), before);
}

TEST_F(FileSystemTest, OnlyAPlainFileThatNobodyHoldsIsRemovedAsUnheld) {
    const Path target = folder_ / "held";
    auto hold = files_.WriteNew(target, "abc", FileAccess::Private);
    files_.RemoveUnheld(target);
    EXPECT_TRUE(std::filesystem::exists(target));
    EXPECT_EQ(RunInChild([&]() -> std::string {
                  files_.RemoveUnheld(target);
                  return std::filesystem::exists(target) ? "there" : "gone";
              }).report,
              "there");
    hold.reset();
    std::filesystem::create_hard_link(target, folder_ / "second name");
    files_.RemoveUnheld(target);
    EXPECT_TRUE(std::filesystem::exists(target));
    std::filesystem::remove(folder_ / "second name");
    files_.RemoveUnheld(target);
    EXPECT_FALSE(std::filesystem::exists(target));

    std::filesystem::remove(folder_ / "circle");  // no checksum can be made of it
    const std::string before = Checksum(folder_.path());
    for (const char* name : {"link", "dangling", "folder", "none"}) {
        EXPECT_NE(Failure([&] { files_.RemoveUnheld(folder_ / name); }), "") << name;
    }
    files_.RemoveUnheld(folder_ / "pipe");
    EXPECT_EQ(Checksum(folder_.path()), before);
}

TEST_F(FileSystemTest, TheNamesOfAFolderAreThoseOfAllThatStandsInIt) {
    EXPECT_THAT(files_.Names(folder_ / "folder"), testing::IsEmpty());
    EXPECT_THAT(files_.Names(folder_.path()), testing::IsSupersetOf({"file", "folder", "link", "pipe"}));
    EXPECT_EQ(Failure([&] { (void)files_.Names(folder_ / "none"); }), Reason(ENOENT));
}

TEST_F(FileSystemTest, WhatCannotBeWrittenHasAReason) {
    EXPECT_EQ(Failure([&] { files_.Write(folder_ / "none" / "file", "x"); }), Reason(ENOENT));
    EXPECT_EQ(Failure([&] { files_.Write(folder_.path(), "x"); }), Reason(EISDIR));
    EXPECT_EQ(Failure([&] { files_.Write("/dev/full", "x"); }), Reason(ENOSPC));
}

TEST_F(FileSystemTest, FilesAndFoldersAreFlushed) {
    EXPECT_EQ(Failure([&] { files_.Flush(file_); }), "");
    EXPECT_EQ(Failure([&] { files_.Flush(folder_.path()); }), "");
    EXPECT_EQ(Failure([&] { files_.Flush(folder_ / "none"); }), Reason(ENOENT));
}

TEST_F(FileSystemTest, ARenameReplacesTheTarget) {
    WriteFile(folder_ / "other", "other");
    files_.Rename(folder_ / "other", file_);
    EXPECT_EQ(ReadFile(file_), "other");
    EXPECT_FALSE(std::filesystem::exists(folder_ / "other"));
    EXPECT_EQ(Failure([&] { files_.Rename(folder_ / "none", file_); }), Reason(ENOENT));
    EXPECT_EQ(Failure([&] { files_.Rename(file_, folder_ / "folder"); }), Reason(EISDIR));
    EXPECT_EQ(ReadFile(file_), "other");
}

TEST_F(FileSystemTest, FilesAreRemovedAndFoldersMade) {
    files_.Remove(file_);
    EXPECT_FALSE(std::filesystem::exists(file_));
    files_.Remove(folder_ / "dangling");
    EXPECT_FALSE(std::filesystem::is_symlink(folder_ / "dangling"));
    files_.MakeDirectory(folder_ / "folder" / "inner");
    EXPECT_TRUE(std::filesystem::is_directory(folder_ / "folder" / "inner"));
    EXPECT_EQ(Failure([&] { files_.Remove(folder_ / "folder"); }), Reason(ENOTEMPTY));
    EXPECT_EQ(Failure([&] { files_.MakeDirectory(folder_ / "none" / "inner"); }), Reason(ENOENT));
    EXPECT_NE(Failure([&] { files_.MakeDirectory(folder_ / "link"); }), "");
}

TEST_F(FileSystemTest, PermissionsAreCopied) {
    WriteFile(folder_ / "other", "other");
    for (const unsigned mode : {0600U, 0644U, 0755U, 0400U, 0660U}) {
        std::filesystem::permissions(file_, perms(mode));
        files_.CopyPermissions(file_, folder_ / "other");
        EXPECT_EQ(std::filesystem::status(folder_ / "other").permissions(), perms(mode)) << std::oct << mode;
    }
    EXPECT_EQ(Failure([&] { files_.CopyPermissions(folder_ / "none", file_); }), Reason(ENOENT));
    EXPECT_EQ(Failure([&] { files_.CopyPermissions(file_, folder_ / "none"); }), Reason(ENOENT));
}

using FileSystemDeathTest = FileSystemTest;

TEST_F(FileSystemDeathTest, AFileIsWritableIfItsPermissionsSaySo) {
    WriteFile(folder_ / "protected", "content");
    std::filesystem::permissions(folder_.path(), perms(0755));
    std::filesystem::permissions(file_, perms(0666));
    std::filesystem::permissions(folder_ / "protected", perms(0444));
    const auto asOrdinaryUser = [this] {
        // The superuser may write to everything, so it becomes somebody else.
        constexpr uid_t kNobody = 65534;
        if (::geteuid() == 0 && ::seteuid(kNobody) != 0) std::_Exit(9);
        const bool right = files_.IsWritable(file_) && files_.IsWritable(folder_ / "link") &&
                           !files_.IsWritable(folder_ / "protected");
        std::_Exit(right ? 0 : 1);
    };
    EXPECT_EXIT(asOrdinaryUser(), testing::ExitedWithCode(0), "");
    EXPECT_FALSE(files_.IsWritable(folder_ / "none"));
}

TEST_F(FileSystemTest, APathIsResolvedWithItsLinksAlsoWhereItsLastPartIsMissing) {
    const Path root = std::filesystem::canonical(folder_.path());
    EXPECT_EQ(files_.Resolve(file_), root / "file");
    EXPECT_EQ(files_.Resolve(folder_ / "link"), root / "file");
    EXPECT_EQ(files_.Resolve(folder_ / "folder" / ".." / "file"), root / "file");
    EXPECT_EQ(files_.Resolve(folder_ / "none"), root / "none");
    EXPECT_EQ(files_.Resolve(folder_ / "folder link" / "none"), root / "folder" / "none");
    EXPECT_EQ(files_.Resolve(folder_ / "dangling"), root / "none");
    EXPECT_EQ(files_.Resolve("relative"), std::filesystem::current_path() / "relative");
    EXPECT_NE(Failure([&] { (void)files_.Resolve(folder_ / "circle"); }), "");
    EXPECT_NE(Failure([&] { (void)files_.Resolve(""); }), "");
}

TEST_F(FileSystemTest, AChainOfLinksIsFollowedToItsMissingEnd) {
    std::filesystem::create_symlink(folder_ / "dangling", folder_ / "first");
    std::filesystem::create_symlink("../none", folder_ / "folder" / "upwards");
    const Path root = std::filesystem::canonical(folder_.path());
    EXPECT_EQ(files_.Resolve(folder_ / "first"), root / "none");
    EXPECT_EQ(files_.Resolve(folder_ / "folder link" / "upwards"), root / "none");
}

// --- replacing a file -------------------------------------------------------------------------------

class ReplaceFileTest : public FileSystemTest {
  protected:
    /// The names of what lies in the folder, in order.
    [[nodiscard]] std::vector<std::string> Names() const {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(folder_.path())) {
            names.push_back(entry.path().filename().string());
        }
        std::sort(names.begin(), names.end());
        return names;
    }

    /// The operations of an undisturbed replacement.
    [[nodiscard]] int OperationsFor(const Path& target) {
        FaultyFileSystem counting(files_, {});
        ReplaceFile(counting, target, new_);
        return counting.operations();
    }

    const std::string old_ = "the old content";
    const std::string new_ = "the content that replaces it";
    Path target_ = folder_ / "target";
};

TEST_F(ReplaceFileTest, AFileGetsItsNewContentAndNothingElseIsLeft) {
    WriteFile(target_, old_);
    const auto names = Names();
    ReplaceFile(files_, target_, new_);
    EXPECT_EQ(ReadFile(target_), new_);
    ReplaceFile(files_, target_, "");
    EXPECT_EQ(ReadFile(target_), "");
    EXPECT_EQ(Names(), names);
}

TEST_F(ReplaceFileTest, AMissingFileIsMade) {
    auto names = Names();
    ReplaceFile(files_, target_, new_);
    EXPECT_EQ(ReadFile(target_), new_);
    names.emplace_back("target");
    std::sort(names.begin(), names.end());
    EXPECT_EQ(Names(), names);
}

TEST_F(ReplaceFileTest, ALinkKeepsPointingAtItsFile) {
    WriteFile(folder_ / "folder" / "real", old_);
    std::filesystem::create_symlink(Path("folder") / "real", target_);
    const auto names = Names();
    ReplaceFile(files_, target_, new_);
    EXPECT_TRUE(std::filesystem::is_symlink(target_));
    EXPECT_EQ(std::filesystem::read_symlink(target_), Path("folder") / "real");
    EXPECT_FALSE(std::filesystem::is_symlink(folder_ / "folder" / "real"));
    EXPECT_EQ(ReadFile(folder_ / "folder" / "real"), new_);
    EXPECT_EQ(Names(), names);
}

TEST_F(ReplaceFileTest, ALinkToAMissingFileGetsItsFile) {
    ReplaceFile(files_, folder_ / "dangling", new_);
    EXPECT_TRUE(std::filesystem::is_symlink(folder_ / "dangling"));
    EXPECT_EQ(ReadFile(folder_ / "none"), new_);
}

TEST_F(ReplaceFileTest, AFileKeepsItsPermissions) {
    for (const unsigned mode : {0600U, 0644U, 0664U, 0700U}) {
        WriteFile(target_, old_);
        std::filesystem::permissions(target_, perms(mode));
        ReplaceFile(files_, target_, new_);
        EXPECT_EQ(ReadFile(target_), new_);
        EXPECT_EQ(std::filesystem::status(target_).permissions(), perms(mode)) << std::oct << mode;
    }
}

TEST_F(ReplaceFileTest, WhatIsNoFileIsNotReplaced) {
    const auto names = Names();
    EXPECT_EQ(Failure([&] { ReplaceFile(files_, folder_ / "folder", new_); }), Reason(EISDIR));
    EXPECT_EQ(Failure([&] { ReplaceFile(files_, folder_ / "folder link", new_); }), Reason(EISDIR));
    EXPECT_EQ(Failure([&] { ReplaceFile(files_, folder_ / "pipe", new_); }), "Not a regular file");
    EXPECT_EQ(Failure([&] { ReplaceFile(files_, folder_ / "none" / "file", new_); }), Reason(ENOENT));
    EXPECT_NE(Failure([&] { ReplaceFile(files_, folder_ / "circle", new_); }), "");
    EXPECT_NE(Failure([&] { ReplaceFile(files_, "", new_); }), "");
    EXPECT_EQ(Names(), names);
    EXPECT_EQ(files_.Kind(folder_ / "pipe"), FileKind::Other);
}

/// A file system in which nothing may be written to.
class ProtectedFileSystem : public FaultyFileSystem {
  public:
    explicit ProtectedFileSystem(FileSystem& inner) : FaultyFileSystem(inner, {}) {}

    [[nodiscard]] bool IsWritable(const Path& /*path*/) const override { return false; }
};

TEST_F(ReplaceFileTest, AWriteProtectedFileStaysAndAMissingOneIsMadeAllTheSame) {
    WriteFile(target_, old_);
    const auto names = Names();
    ProtectedFileSystem files(files_);
    EXPECT_EQ(Failure([&] { ReplaceFile(files, target_, new_); }), Reason(EACCES));
    EXPECT_EQ(ReadFile(target_), old_);
    EXPECT_EQ(Names(), names);
    EXPECT_EQ(files.operations(), 0);
    ReplaceFile(files, folder_ / "new", new_);
    EXPECT_EQ(ReadFile(folder_ / "new"), new_);
}

TEST_F(ReplaceFileTest, ANameMayBeAsLongAsThePlatformAllows) {
    const Path target = folder_ / std::string(255, 'x');
    WriteFile(target, old_);
    const auto names = Names();
    ReplaceFile(files_, target, new_);
    EXPECT_EQ(ReadFile(target), new_);
    EXPECT_EQ(Names(), names);
}

TEST_F(ReplaceFileTest, AFailureLeavesTheOldFileAndNothingBesideIt) {
    WriteFile(target_, old_);
    const int operations = OperationsFor(target_);
    ASSERT_GE(operations, 3) << "written, flushed, renamed";
    for (int operation = 0; operation < operations; ++operation) {
        for (const std::size_t bytes : {std::size_t{0}, std::size_t{1}, new_.size() - 1, new_.size()}) {
            WriteFile(target_, old_);
            const auto names = Names();
            FaultyFileSystem faulty(files_, {.operation = operation, .bytes = bytes});
            const std::string failure = Failure([&] { ReplaceFile(faulty, target_, new_); });
            // The last operation only flushes the folder: by then the new file is in place.
            const bool inPlace = operation == operations - 1;
            EXPECT_EQ(failure, inPlace ? "" : FaultyFileSystem::kReason) << operation;
            EXPECT_EQ(ReadFile(target_), inPlace ? new_ : old_) << operation;
            EXPECT_EQ(Names(), names) << operation;
        }
    }
}

TEST_F(ReplaceFileTest, AFailureMakesNoHalfOfANewFile) {
    const int operations = OperationsFor(target_);
    for (int operation = 0; operation < operations; ++operation) {
        std::filesystem::remove(target_);
        auto names = Names();
        FaultyFileSystem faulty(files_, {.operation = operation, .bytes = 5});
        const std::string failure = Failure([&] { ReplaceFile(faulty, target_, new_); });
        if (operation < operations - 1) {
            EXPECT_EQ(failure, FaultyFileSystem::kReason) << operation;
        } else {
            EXPECT_EQ(failure, "");
            EXPECT_EQ(ReadFile(target_), new_);
            names.emplace_back("target");
            std::sort(names.begin(), names.end());
        }
        EXPECT_EQ(Names(), names) << operation;
    }
}

TEST_F(ReplaceFileTest, AFullDiskIsReportedByItsOwnReason) {
    WriteFile(target_, old_);
    FaultyFileSystem faulty(files_, {.operation = 0, .bytes = 5});
    EXPECT_EQ(Failure([&] { ReplaceFile(faulty, target_, new_); }), Reason(ENOSPC));
}

using ReplaceFileDeathTest = ReplaceFileTest;

TEST_F(ReplaceFileDeathTest, AKillAtAnyMomentLeavesTheOldFileOrTheNewOneWhole) {
    WriteFile(target_, old_);
    const auto names = Names();
    const int operations = OperationsFor(target_);
    for (int operation = 0; operation < operations; ++operation) {
        WriteFile(target_, old_);
        FaultyFileSystem killing(files_, {.operation = operation, .bytes = 5, .kill = true});
        EXPECT_EXIT(ReplaceFile(killing, target_, new_), testing::KilledBySignal(SIGKILL), "");
        EXPECT_EQ(ReadFile(target_), operation == operations - 1 ? new_ : old_) << operation;
        // What the killed process left behind goes with the next replacement.
        ReplaceFile(files_, target_, new_);
        EXPECT_EQ(ReadFile(target_), new_) << operation;
        EXPECT_EQ(Names(), names) << operation;
    }
}

TEST_F(ReplaceFileDeathTest, OnlyWhatIsSurelyALeftoverOfThisVeryFileIsRemoved) {
    WriteFile(target_, old_);
    FaultyFileSystem killing(files_, {.operation = 0, .bytes = 5, .kill = true});
    EXPECT_EXIT(ReplaceFile(killing, target_, new_), testing::KilledBySignal(SIGKILL), "");
    EXPECT_EXIT(ReplaceFile(killing, folder_ / "target.old", new_), testing::KilledBySignal(SIGKILL), "");
    const auto isOfOther = [](const std::string& name) { return name.starts_with(".target.old."); };
    const auto left = Names();
    ASSERT_EQ(std::count_if(left.begin(), left.end(), isOfOther), 1);
    for (const char* name : {".target.new", ".target.0123456789abcde.new", ".target.0123456789ABCDEF.new",
                             ".target.0123456789abcdef.newer", "target.0123456789abcdef.new"}) {
        WriteFile(folder_ / name, "the user's");
    }
    const auto hold = files_.WriteNew(folder_ / ".target.0123456789abcdef.new", new_, FileAccess::Private);
    auto expected = Names();
    std::erase_if(expected, [&](const std::string& name) {
        const bool isOurs =
            name.starts_with(".target.") && name.size() == std::string(".target.").size() + 20;
        return isOurs && !isOfOther(name) && name.find("0123456789") == std::string::npos;
    });
    RemoveLeftovers(files_, target_);
    EXPECT_EQ(Names(), expected);
    EXPECT_EQ(expected.size() + 1, left.size() + 6);
    RemoveLeftovers(files_, folder_ / "none" / "file");  // a failure is nobody's concern
    RemoveLeftovers(files_, "");
}

TEST_F(ReplaceFileDeathTest, AReplacementInAnotherProcessIsLeftAlone) {
    WriteFile(target_, old_);
    /// Clears up just before the file gets its place, as another process might.
    class Meddling : public NativeFileSystem {
      public:
        void Rename(const Path& from, const Path& to) override {
            EXPECT_EQ(RunInChild([&]() -> std::string {
                          NativeFileSystem files;
                          RemoveLeftovers(files, to);
                          return "cleared up";
                      }).report,
                      "cleared up");
            NativeFileSystem::Rename(from, to);
        }
    };
    Meddling files;
    ReplaceFile(files, target_, new_);
    EXPECT_EQ(ReadFile(target_), new_);
}

TEST_F(ReplaceFileDeathTest, WhatAPrivateFileGetsIsAtNoMomentOpenToOthers) {
    const OpenUmask open;
    std::filesystem::create_directory(folder_ / "private");
    const Path target = folder_ / "private" / "target";
    WriteFile(target, old_);
    std::filesystem::permissions(target, perms(0600));
    const int operations = OperationsFor(target);
    for (int operation = 0; operation < operations; ++operation) {
        FaultyFileSystem killing(files_, {.operation = operation, .bytes = 5, .kill = true});
        EXPECT_EXIT(ReplaceFile(killing, target, new_), testing::KilledBySignal(SIGKILL), "");
        for (const auto& entry : std::filesystem::directory_iterator(folder_ / "private")) {
            EXPECT_EQ(entry.status().permissions(), perms(0600)) << operation << " " << entry.path();
        }
    }
}

}  // namespace
}  // namespace kelvor::test
