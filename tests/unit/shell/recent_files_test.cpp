#include "shell/recent_files.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/child_process.h"
#include "support/project_fixture.h"

namespace kelvor::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class RecentFilesTest : public ProjectTest {
  protected:
    /// Uses a path at a moment of the day.
    void Use(const std::string& path, const std::string& time) {
        program_.host.clock.timestamp = "2001-02-03 " + time;
        AddRecentFile(State(), path);
    }

    std::vector<std::string> Paths() { return RecentPaths(State()); }
    std::vector<RecentFile> Rows() { return State().dbCatalogue->RecentFiles(); }
};

TEST_F(RecentFilesTest, TheListIsFourFreeRowsAtFirst) {
    EXPECT_THAT(Paths(), IsEmpty());
    EXPECT_THAT(Rows(), SizeIs(4));
}

TEST_F(RecentFilesTest, TheNewestStandsFirst) {
    Use("/a.kvr", "10:00:00.000");
    Use("/b.kvr", "10:00:01.000");
    Use("/c.kvr", "10:00:02.000");
    EXPECT_THAT(Paths(), ElementsAre("/c.kvr", "/b.kvr", "/a.kvr"));
    EXPECT_THAT(Rows(), SizeIs(4));
}

TEST_F(RecentFilesTest, RowsAreNumberedFromZeroWithTheFreeOnesLast) {
    Use("/a.kvr", "10:00:00.000");
    Use("/b.kvr", "10:00:01.000");
    const std::vector<RecentFile> rows = Rows();
    ASSERT_THAT(rows, SizeIs(4));
    for (std::size_t i = 0; i < rows.size(); ++i) EXPECT_EQ(rows[i].sortOrder, static_cast<int>(i));
    EXPECT_EQ(rows[0].fileName, "/b.kvr");
    EXPECT_EQ(rows[0].openDate, "2001-02-03 10:00:01.000");
    EXPECT_EQ(rows[1].fileName, "/a.kvr");
    EXPECT_EQ(rows[1].openDate, "2001-02-03 10:00:00.000");
    EXPECT_EQ(rows[2].fileName, std::nullopt);
    EXPECT_EQ(rows[3].fileName, std::nullopt);
}

TEST_F(RecentFilesTest, AFileAlreadyInTheListMovesToTheTopWithNoDuplicate) {
    Use("/a.kvr", "10:00:00.000");
    Use("/b.kvr", "10:00:01.000");
    Use("/c.kvr", "10:00:02.000");
    Use("/a.kvr", "10:00:03.000");
    EXPECT_THAT(Paths(), ElementsAre("/a.kvr", "/c.kvr", "/b.kvr"));
    Use("/a.kvr", "10:00:04.000");
    EXPECT_THAT(Paths(), ElementsAre("/a.kvr", "/c.kvr", "/b.kvr"));
}

TEST_F(RecentFilesTest, AFifthFileTakesThePlaceOfTheOldest) {
    Use("/a.kvr", "10:00:00.000");
    Use("/b.kvr", "10:00:01.000");
    Use("/c.kvr", "10:00:02.000");
    Use("/d.kvr", "10:00:03.000");
    Use("/a.kvr", "10:00:04.000");
    Use("/e.kvr", "10:00:05.000");
    EXPECT_THAT(Paths(), ElementsAre("/e.kvr", "/a.kvr", "/d.kvr", "/c.kvr"));
    EXPECT_THAT(Rows(), SizeIs(4));
}

TEST_F(RecentFilesTest, TheRowJustWrittenWinsATie) {
    for (const char* path : {"/a.kvr", "/b.kvr", "/c.kvr", "/d.kvr", "/e.kvr"}) Use(path, "10:00:00.000");
    EXPECT_THAT(Paths(), ElementsAre("/e.kvr", "/d.kvr", "/c.kvr", "/b.kvr"));
    Use("/c.kvr", "10:00:00.000");
    EXPECT_THAT(Paths(), ElementsAre("/c.kvr", "/e.kvr", "/d.kvr", "/b.kvr"));
}

TEST_F(RecentFilesTest, AMillisecondDecides) {
    Use("/a.kvr", "10:00:00.002");
    Use("/b.kvr", "10:00:00.001");  // the clock was set back
    EXPECT_THAT(Paths(), ElementsAre("/a.kvr", "/b.kvr"));
}

TEST_F(RecentFilesTest, AFreeRowIsTakenBeforeAUsedOneWhereverItStands) {
    for (const char* path : {"/a.kvr", "/b.kvr", "/c.kvr", "/d.kvr"}) Use(path, "10:00:00.000");
    RunSql(program_.home / "DataBase/Kelvor.mdb",
           "UPDATE RecentFiles SET FileName = NULL WHERE SortOrder = 1");
    Use("/e.kvr", "10:00:01.000");
    EXPECT_THAT(Paths(), ElementsAre("/e.kvr", "/d.kvr", "/b.kvr", "/a.kvr"));
}

TEST_F(RecentFilesTest, UnderscoresAndApostrophesArePlainLetters) {
    Use("/a_b.kvr", "10:00:00.000");
    Use("/axb.kvr", "10:00:01.000");
    Use("/a_b.kvr", "10:00:02.000");
    EXPECT_THAT(Paths(), ElementsAre("/a_b.kvr", "/axb.kvr"));
    Use("/O'Brien's '; DROP TABLE RecentFiles; --.kvr", "10:00:03.000");
    Use("/50%.kvr", "10:00:04.000");
    Use("/50x.kvr", "10:00:05.000");
    EXPECT_THAT(Paths(), ElementsAre("/50x.kvr", "/50%.kvr", "/O'Brien's '; DROP TABLE RecentFiles; --.kvr",
                                     "/a_b.kvr"));
}

TEST_F(RecentFilesTest, APathWithWildCardsMatchesLooselyAndItself) {
    Use("/[ab].kvr", "10:00:00.000");
    Use("/[ab].kvr", "10:00:01.000");
    EXPECT_THAT(Paths(), ElementsAre("/[ab].kvr"));
    Use("/plan1.kvr", "10:00:02.000");
    Use("/plan?.kvr", "10:00:03.000");
    EXPECT_THAT(Paths(), ElementsAre("/plan1.kvr", "/[ab].kvr"));
    EXPECT_EQ(Rows()[0].openDate, "2001-02-03 10:00:03.000");
    Use("/open[.kvr", "10:00:04.000");
    Use("/open[.kvr", "10:00:05.000");
    EXPECT_THAT(Paths(), ElementsAre("/open[.kvr", "/plan1.kvr", "/[ab].kvr"));
}

TEST_F(RecentFilesTest, PathsMatchWithoutRegardToCase) {
    Use("/Plan.kvr", "10:00:00.000");
    Use("/PLAN.KVR", "10:00:01.000");
    EXPECT_THAT(Paths(), ElementsAre("/Plan.kvr"));
}

TEST_F(RecentFilesTest, TheListOutlivesTheProgram) {
    TestHome home;
    for (const char* path : {"/a.kvr", "/b.kvr"}) {
        TestHost host;
        Program program(host.host(), home.home());
        ASSERT_EQ(program.Start(""), StartResult::Running);
        AddRecentFile(program.state(), path);
    }
    TestHost host;
    Program program(host.host(), home.home());
    ASSERT_EQ(program.Start(""), StartResult::Running);
    EXPECT_THAT(RecentPaths(program.state()), ElementsAre("/b.kvr", "/a.kvr"));
}

TEST_F(RecentFilesTest, OpeningAndSavingRecordTheFullPath) {
    program_.host.clock.timestamp = "2001-02-03 10:00:00.000";
    ASSERT_TRUE(Run().SaveAs(File("a.kvr")));
    program_.host.clock.timestamp = "2001-02-03 10:00:01.000";
    ASSERT_TRUE(Run().SaveAs(File("b")));
    EXPECT_THAT(Paths(), ElementsAre(File("b.kvr"), File("a.kvr")));
    program_.host.clock.timestamp = "2001-02-03 10:00:02.000";
    ASSERT_TRUE(Run().OpenProject(File("a.kvr")));
    EXPECT_THAT(Paths(), ElementsAre(File("a.kvr"), File("b.kvr")));
    program_.host.clock.timestamp = "2001-02-03 10:00:03.000";
    ASSERT_FALSE(Run().OpenProject(File("missing.kvr")));
    EXPECT_THAT(Paths(), ElementsAre(File("missing.kvr"), File("a.kvr"), File("b.kvr")))
        << "every opening path takes the path, also when the open fails";
    ASSERT_FALSE(Run().OpenProject(""));
    ASSERT_TRUE(Run().NewProject());
    EXPECT_THAT(Paths(), SizeIs(3));
}

TEST_F(RecentFilesTest, TheWaitCursorIsOffAfterwards) {
    AddRecentFile(State(), "/a.kvr");
    EXPECT_FALSE(program_.host.dialogs.waiting());
}

TEST_F(RecentFilesTest, ABrokenListIsIgnored) {
    ASSERT_TRUE(Run().SaveAs(File("a.kvr")));
    for (const char* damage :
         {"UPDATE RecentFiles SET SortOrder = 'first'", "UPDATE RecentFiles SET SortOrder = -1",
          "UPDATE RecentFiles SET SortOrder = 99999999999", "UPDATE RecentFiles SET OpenDate = NULL",
          "UPDATE RecentFiles SET FileName = x'00'", "DELETE FROM RecentFiles", "DROP TABLE RecentFiles",
          "CREATE TABLE RecentFiles (Other)"}) {
        SCOPED_TRACE(damage);
        RunSql(program_.home / "DataBase/Kelvor.mdb", damage);
        EXPECT_TRUE(Run().OpenProject(File("a.kvr")));
        EXPECT_TRUE(Run().Save());
    }
    EXPECT_THAT(Messages(), IsEmpty());
}

TEST_F(RecentFilesTest, AReadOnlyCatalogueIsIgnored) {
    ASSERT_TRUE(Run().SaveAs(File("plan.kvr")));
    TestHome home;
    const TemporaryFolder work;
    OpenToEverybody(work.path(), true);
    OpenToEverybody(folder_.path(), true);
    const WriteProtection readOnly(home.path());
    const std::string before = Checksum(home.path());
    const ChildEnd end = RunInChild(
        [&]() -> std::string {
            TestHost host;
            Program program(host.host(), {home.path(), work.path()});
            if (program.Start(File("plan.kvr")) != StartResult::Running) return "not started";
            program.SetValue("SN", 1, 1, "5.5");
            const bool saved = program.Save();
            std::string report = saved ? "saved" : "not saved";
            for (const std::string& text : host.record.TakeTexts()) report += "\n" + text;
            return report + " " + std::to_string(RecentPaths(program.state()).size());
        },
        Rights::Unprivileged);
    EXPECT_EQ(end.report, "saved 0");
    EXPECT_EQ(NumberInFile(File("plan.kvr"), "SN"), 5.5);
    EXPECT_EQ(Checksum(home.path()), before);
}

}  // namespace
}  // namespace kelvor::test
