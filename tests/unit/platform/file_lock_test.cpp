#include "platform/file_lock.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <functional>
#include <memory>
#include <stdexcept>

#include "support/test_home.h"

namespace kelvor::test {
namespace {

/// Runs a body in a child process and gives its exit status as waitpid does. Nothing of the test is
/// torn down in the child.
int InChild(const std::function<int()>& body) {
    const pid_t child = ::fork();
    if (child < 0) throw std::runtime_error("no child process can be made");
    if (child == 0) {
        int result = 99;
        try {
            result = body();
        } catch (...) {
            result = 98;
        }
        ::_exit(result);
    }
    int status = 0;
    if (::waitpid(child, &status, 0) != child) throw std::runtime_error("the child process is lost");
    return status;
}

/// Whether another process can have the lock.
bool ChildGetsLock(const Path& path) {
    const int status = InChild([&path] { return FileLock(path).holds() ? 1 : 0; });
    if (!WIFEXITED(status) || WEXITSTATUS(status) > 1) throw std::runtime_error("the child process failed");
    return WEXITSTATUS(status) == 1;
}

class FileLockTest : public testing::Test {
  protected:
    TemporaryFolder folder_;
    Path path_ = folder_ / "kvrwork.lock";
};

TEST_F(FileLockTest, TheFirstOneHoldsItAndTheFileIsThereMeanwhile) {
    {
        const FileLock lock(path_);
        EXPECT_TRUE(lock.holds());
        EXPECT_TRUE(std::filesystem::exists(path_));
    }
    EXPECT_FALSE(std::filesystem::exists(path_));
}

TEST_F(FileLockTest, ASecondOneIsRefusedAndChangesNothing) {
    const FileLock lock(path_);
    for (int i = 0; i < 3; ++i) {
        const FileLock second(path_);
        EXPECT_FALSE(second.holds());
    }
    EXPECT_TRUE(lock.holds());
    EXPECT_TRUE(std::filesystem::exists(path_)) << "a refused lock leaves the holder's file";
    EXPECT_FALSE(FileLock(path_).holds()) << "a refused lock leaves the holder's lock";
}

TEST_F(FileLockTest, AnotherProcessIsRefusedForAsLongAsItIsHeld) {
    EXPECT_TRUE(ChildGetsLock(path_));
    {
        const FileLock lock(path_);
        ASSERT_TRUE(lock.holds());
        EXPECT_FALSE(ChildGetsLock(path_));
        EXPECT_FALSE(ChildGetsLock(path_));
        EXPECT_TRUE(std::filesystem::exists(path_));
    }
    EXPECT_TRUE(ChildGetsLock(path_));
}

TEST_F(FileLockTest, AnEndedOneGivesWayToTheNext) {
    auto lock = std::make_unique<FileLock>(path_);
    EXPECT_FALSE(FileLock(path_).holds());
    lock.reset();
    const FileLock next(path_);
    EXPECT_TRUE(next.holds());
    EXPECT_TRUE(std::filesystem::exists(path_));
    EXPECT_FALSE(ChildGetsLock(path_));
}

TEST_F(FileLockTest, AKilledProcessLeavesTheFileButNotTheLock) {
    const int status = InChild([this] {
        const FileLock lock(path_);
        if (!lock.holds()) return 1;
        std::raise(SIGKILL);
        return 2;
    });
    ASSERT_TRUE(WIFSIGNALED(status));
    ASSERT_EQ(WTERMSIG(status), SIGKILL);
    ASSERT_TRUE(std::filesystem::exists(path_));
    {
        const FileLock lock(path_);
        EXPECT_TRUE(lock.holds());
        EXPECT_FALSE(ChildGetsLock(path_));
    }
    EXPECT_FALSE(std::filesystem::exists(path_));
}

TEST_F(FileLockTest, ALeftoverFileIsTakenOver) {
    WriteFile(path_, "of another program");
    {
        const FileLock lock(path_);
        EXPECT_TRUE(lock.holds());
        EXPECT_FALSE(FileLock(path_).holds());
    }
    EXPECT_FALSE(std::filesystem::exists(path_));
}

TEST_F(FileLockTest, LocksOnOtherPathsAreFree) {
    const FileLock lock(path_);
    const FileLock other(folder_ / "other.lock");
    EXPECT_TRUE(lock.holds());
    EXPECT_TRUE(other.holds());
}

TEST_F(FileLockTest, WhatCannotBeMadeIsAnError) {
    EXPECT_THROW(FileLock(folder_ / "none" / "kvrwork.lock"), FileError);
    EXPECT_THROW(FileLock(folder_.path()), FileError);
}

TEST_F(FileLockTest, ALinkIsNotFollowed) {
    WriteFile(folder_ / "precious", "data");
    std::filesystem::create_symlink("precious", path_);
    EXPECT_THROW(FileLock{path_}, FileError);
    EXPECT_EQ(ReadFile(folder_ / "precious"), "data");
    EXPECT_TRUE(std::filesystem::is_symlink(path_));
}

}  // namespace
}  // namespace kelvor::test
