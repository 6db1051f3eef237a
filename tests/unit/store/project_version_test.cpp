#include "store/project_version.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/sqlite.h"
#include "support/test_home.h"

namespace kelvor::test {
namespace {

using testing::HasSubstr;

constexpr int kNext = kProjectVersion + 1;

class ProjectVersionTest : public testing::Test {
  protected:
    ProjectVersionTest() { std::filesystem::copy_file(home_ / "kvrwork.tpl", file_); }

    void Sql(const std::string& statements) {
        SQLite::Database(file_.string(), SQLite::OPEN_READWRITE).exec(statements);
    }
    std::string Ask(const std::string& question) {
        SQLite::Database database(file_.string(), SQLite::OPEN_READONLY);
        return database.execAndGet(question).getString();
    }

    TestHome home_;
    Path file_ = home_ / "kvrwork.tmp";
};

TEST_F(ProjectVersionTest, ANewProjectSaysWhatItIs) {
    EXPECT_EQ(Ask("PRAGMA user_version"), "1");
    EXPECT_EQ(Ask("PRAGMA application_id"), std::to_string(0x4B565250));
    EXPECT_EQ(ReadFile(file_).substr(68, 4), "KVRP");  // where the desktop's database of types looks
}

TEST_F(ProjectVersionTest, AFileFromBeforeTheFirstReleaseIsOfTheFirstVersion) {
    Sql("PRAGMA user_version = 0; PRAGMA application_id = 0");
    EXPECT_EQ(WorkCopy(file_, true).version(), 1);
}

TEST_F(ProjectVersionTest, AFileOfANewerVersionIsRefusedWithWordsThatSaySo) {
    Sql("PRAGMA user_version = 2");
    try {
        const WorkCopy project(file_, true);
        FAIL() << "it was opened";
    } catch (const DatabaseError& failure) {
        EXPECT_THAT(failure.what(), HasSubstr("it was saved by a newer version of Kelvor"));
        EXPECT_FALSE(failure.notADatabase());
    }
}

TEST_F(ProjectVersionTest, WhatANewerVersionMadeOtherwiseIsNoFaultOfTheFile) {
    Sql("PRAGMA user_version = 2; CREATE TABLE Notes (Text TEXT)");
    try {
        const WorkCopy project(file_, true);
        FAIL() << "it was opened";
    } catch (const DatabaseError& failure) {
        EXPECT_THAT(failure.what(), HasSubstr("newer version"));
    }
}

TEST_F(ProjectVersionTest, AnOlderProjectGetsTheCellsThatWereAddedSinceEmpty) {
    Sql("UPDATE Project SET RValue = 4.5, SValue = '4.5' WHERE Name = 'SN'");
    {
        WorkCopy project(file_, true, kNext);
        BringUpToDate(project, {{"SN", 1, 1}, {"NEWCELL", 2, 3}}, kNext);
        EXPECT_EQ(project.version(), kNext);
    }
    EXPECT_EQ(Ask("PRAGMA user_version"), std::to_string(kNext));
    EXPECT_EQ(Ask("SELECT group_concat(Dim1 || '/' || Dim2, ' ') FROM (SELECT * FROM Project WHERE Name = "
                  "'NEWCELL' AND "
                  "RValue IS NULL AND SValue IS NULL ORDER BY Dim1, Dim2)"),
              "1/1 1/2 1/3 2/1 2/2 2/3");
    EXPECT_EQ(Ask("SELECT RValue || ' ' || SValue FROM Project WHERE Name = 'SN'"), "4.5 4.5");
}

TEST_F(ProjectVersionTest, AProjectOfTheSameVersionThatLacksCellsStaysAsItIs) {
    const std::string before = ReadFile(file_);
    {
        WorkCopy project(file_, true);
        BringUpToDate(project, {{"NEWCELL", 2, 3}});
    }
    EXPECT_EQ(ReadFile(file_), before);
}

}  // namespace
}  // namespace kelvor::test
