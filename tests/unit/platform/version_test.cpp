#include "platform/version.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace kelvor::test {
namespace {

using testing::Each;
using testing::EndsWith;
using testing::Field;
using testing::MatchesRegex;
using testing::StartsWith;

TEST(VersionTest, TheVersionHasThreeNumbers) {
    EXPECT_THAT(std::string(ProgramVersion()), MatchesRegex("[0-9]+\\.[0-9]+\\.[0-9]+"));
}

TEST(VersionTest, EveryLibraryIsToldWithItsVersion) {
    EXPECT_THAT(CoreLibraries(), Each(Field(&Library::version, MatchesRegex("[0-9]+\\.[0-9.]+"))));
}

TEST(VersionTest, TheTextHasProgramCommitAndLibrariesWithThoseOfTheFrontEndLast) {
    const std::string text = VersionText("kelvor", {{"Qt", "6.4.2"}});
    EXPECT_THAT(text, StartsWith("kelvor " + std::string(ProgramVersion()) + "\ncommit " +
                                 std::string(SourceCommit()) + "\nwith SQLite "));
    EXPECT_THAT(text, EndsWith(", Qt 6.4.2"));
}

}  // namespace
}  // namespace kelvor::test
