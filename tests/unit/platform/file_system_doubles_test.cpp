#include "support/file_system_doubles.h"

#include <gtest/gtest.h>

#include <csignal>
#include <functional>
#include <string>
#include <vector>

#include "support/test_home.h"

namespace kelvor::test {
namespace {

class FaultyFileSystemTest : public testing::Test {
  protected:
    FaultyFileSystemTest() { WriteFile(file_, "old"); }

    /// Every operation that counts, each of which changes or reads something of its own.
    [[nodiscard]] std::vector<std::function<void(FileSystem&)>> Operations() const {
        return {
            [this](FileSystem& files) { (void)files.Read(file_, 100); },
            [this](FileSystem& files) { (void)files.ReadStart(file_, 2); },
            [this](FileSystem& files) { files.Write(folder_ / "written", "content"); },
            [this](FileSystem& files) {
                (void)files.WriteNew(folder_ / "private", "content", FileAccess::Private);
            },
            [this](FileSystem& files) { files.Flush(file_); },
            [this](FileSystem& files) { files.MakeDirectory(folder_ / "made"); },
            [this](FileSystem& files) { files.CopyPermissions(file_, file_); },
            [this](FileSystem& files) { files.Rename(file_, folder_ / "renamed"); },
            [this](FileSystem& files) { files.Remove(folder_ / "renamed"); },
        };
    }

    TemporaryFolder folder_;
    NativeFileSystem native_;
    Path file_ = folder_ / "file";
};

TEST_F(FaultyFileSystemTest, WithoutAPlanEverythingWorksAndCounts) {
    FaultyFileSystem files(native_, {});
    int count = 0;
    for (const auto& operation : Operations()) {
        operation(files);
        EXPECT_EQ(files.operations(), ++count);
    }
    EXPECT_EQ(ReadFile(folder_ / "written"), "content");
    EXPECT_TRUE(std::filesystem::is_directory(folder_ / "made"));
    EXPECT_FALSE(std::filesystem::exists(file_));
    EXPECT_FALSE(std::filesystem::exists(folder_ / "renamed"));
}

TEST_F(FaultyFileSystemTest, LookingDoesNotCountAndNeverFails) {
    FaultyFileSystem files(native_, {.operation = 0});
    EXPECT_EQ(files.Kind(file_), FileKind::Regular);
    EXPECT_EQ(files.Resolve(file_), native_.Resolve(file_));
    files.RemoveUnheld(folder_ / files.Names(folder_.path()).front());
    EXPECT_FALSE(std::filesystem::exists(file_));
    EXPECT_EQ(files.operations(), 0);
}

TEST_F(FaultyFileSystemTest, EachOperationFailsInItsTurnAndDoesNothing) {
    for (const auto& operation : Operations()) {
        const std::string before = Checksum(folder_.path());
        FaultyFileSystem files(native_, {.operation = 0});
        EXPECT_THROW(operation(files), FileError);
        EXPECT_EQ(files.operations(), 1);
        EXPECT_EQ(Checksum(folder_.path()), before);
        operation(files);  // the next one works
        EXPECT_EQ(files.operations(), 2);
    }
}

TEST_F(FaultyFileSystemTest, OnlyThePlannedOperationFails) {
    FaultyFileSystem files(native_, {.operation = 2});
    files.Write(file_, "1");
    files.Write(file_, "2");
    EXPECT_THROW(files.Write(file_, "3"), FileError);
    EXPECT_EQ(ReadFile(file_), "2");
    files.Write(file_, "4");
    EXPECT_EQ(ReadFile(file_), "4");
}

TEST_F(FaultyFileSystemTest, AFullDiskTakesTheFirstBytes) {
    FaultyFileSystem some(native_, {.operation = 0, .bytes = 3});
    EXPECT_THROW(some.Write(file_, "content"), FileError);
    EXPECT_EQ(ReadFile(file_), "con");
    FaultyFileSystem all(native_, {.operation = 0, .bytes = 100});
    EXPECT_THROW(all.Write(file_, "content"), FileError);
    EXPECT_EQ(ReadFile(file_), "content");
    FaultyFileSystem secret(native_, {.operation = 0, .bytes = 3});
    EXPECT_THROW((void)secret.WriteNew(folder_ / "secret", "secret", FileAccess::Private), FileError);
    EXPECT_EQ(ReadFile(folder_ / "secret"), "sec");
}

using FaultyFileSystemDeathTest = FaultyFileSystemTest;

TEST_F(FaultyFileSystemDeathTest, AKillEndsTheProcessAtTheOperation) {
    FaultyFileSystem files(native_, {.operation = 1, .bytes = 3, .kill = true});
    EXPECT_EXIT(
        {
            files.Write(file_, "first");
            files.Write(folder_ / "second", "content");
            files.Write(folder_ / "third", "content");
        },
        testing::KilledBySignal(SIGKILL), "");
    EXPECT_EQ(ReadFile(file_), "first");
    EXPECT_EQ(ReadFile(folder_ / "second"), "con");
    EXPECT_FALSE(std::filesystem::exists(folder_ / "third"));
}

}  // namespace
}  // namespace kelvor::test
