#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/project_fixture.h"

namespace kelvor::test {
namespace {

using testing::ElementsAre;
using testing::StartsWith;

class ProjectVersionOfFilesTest : public ProjectTest {};

TEST_F(ProjectVersionOfFilesTest, AProjectOfANewerVersionIsRefusedAndStaysAsItIs) {
    const std::string file = File("next.kvr");
    ASSERT_TRUE(Run().SaveAs(file));
    RunSql(file, "PRAGMA user_version = 2");
    const std::string before = ReadFile(file);
    (void)Messages();
    EXPECT_FALSE(Run().OpenProject(file));
    EXPECT_THAT(Messages(), ElementsAre(StartsWith("Error loading from " + file +
                                                   ": it was saved by a newer version of Kelvor")));
    EXPECT_FALSE(State().dbWork.IsOpen());
    EXPECT_EQ(ReadFile(file), before);
}

TEST_F(ProjectVersionOfFilesTest, AProjectFromBeforeTheFirstReleaseOpens) {
    const std::string file = File("old.kvr");
    ASSERT_TRUE(Run().SaveAs(file));
    RunSql(file,
           "PRAGMA user_version = 0; PRAGMA application_id = 0; UPDATE Project SET RValue = 4.5 WHERE Name = "
           "'SN'");
    EXPECT_TRUE(Run().OpenProject(file));
    EXPECT_EQ(Get("SN"), 4.5);
}

}  // namespace
}  // namespace kelvor::test
