#include "shell/project_files.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include "support/project_fixture.h"

namespace kelvor::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ProjectFilesTest : public ProjectTest {
  protected:
    ProjectFiles files_{State()};
};

// --- Save As -------------------------------------------------------------------------------------

TEST_F(ProjectFilesTest, OnlyTheEndingKvrInAnyCaseIsLeftAsItIs) {
    const std::vector<std::pair<std::string, std::string>> names = {
        {"plan", "plan.kvr"},
        {"plan.kvr", "plan.kvr"},
        {"PLAN2.KVR", "PLAN2.KVR"},
        {"plan3.Kvr", "plan3.Kvr"},
        {"plan.txt", "plan.txt.kvr"},
        {"plan.kvr2", "plan.kvr2.kvr"},
        {"kvr", "kvr.kvr"},
        {"xkvr", "xkvr.kvr"},
        {".kvr", ".kvr"},
        {"plan.kvr.bak", "plan.kvr.bak.kvr"},
        {"ends.", "ends..kvr"},
        {"K", "K.kvr"},
    };
    for (const auto& [given, made] : names) {
        SCOPED_TRACE(given);
        std::filesystem::remove(File(made));
        program_.host.dialogs.QueueAnswer(File(given));
        EXPECT_TRUE(files_.SaveProjectAs());
        EXPECT_EQ(State().sProjectFile, File(made));
        EXPECT_TRUE(std::filesystem::is_regular_file(File(made)));
    }
    EXPECT_THAT(Messages(), IsEmpty());
}

TEST_F(ProjectFilesTest, TheSaveDialogStartsInTheProjectsFolderWithItsFilter) {
    ASSERT_FALSE(std::filesystem::exists(program_.home / "Projects"));
    EXPECT_FALSE(files_.SaveProjectAs());
    EXPECT_TRUE(std::filesystem::is_directory(program_.home / "Projects"));
    ASSERT_EQ(program_.host.record.files.size(), 1U);
    const FileRequest& request = program_.host.record.files[0];
    EXPECT_EQ(request.kind, FileRequest::Kind::Save);
    EXPECT_EQ(request.folder, program_.home / "Projects");
    EXPECT_EQ(request.filter, "KVR projects (*.kvr)|*.kvr");
}

TEST_F(ProjectFilesTest, AnUnnamedProjectIsToBeCalledWhatTheProjectIdSays) {
    const auto suggested = [&] {
        (void)files_.SaveProjectAs();
        return program_.host.record.files.back().suggested;
    };
    EXPECT_EQ(suggested(), "");
    Enter("PavDesc", "Two lanes");
    EXPECT_EQ(suggested(), "Two lanes.kvr");
    Enter("JobNumber", "4711/b");
    EXPECT_EQ(suggested(), "4711 b.kvr");
    Enter("Location", "...");  // leaves no name
    EXPECT_EQ(suggested(), "4711 b.kvr");
    Enter("Location", "Route 12");
    EXPECT_EQ(suggested(), "Route 12.kvr");
    ASSERT_TRUE(Run().SaveAs(File("plan.kvr")));
    EXPECT_EQ(suggested(), "plan.kvr") << "of a file the name";
    Run().Raise({UserEvent::Kind::Menu, "NewProj"});
    EXPECT_EQ(suggested(), "");
}

TEST_F(ProjectFilesTest, AFileAmongTheSamplesStaysOutOfTheRecentList) {
    const Path samples = State().home.SamplesFolder();
    std::filesystem::create_directories(samples);
    ASSERT_TRUE(Run().SaveAs((samples / "mine").string()));
    EXPECT_THAT(RecentPaths(State()), IsEmpty());
    ASSERT_TRUE(Run().SaveAs(File("mine")));
    EXPECT_THAT(RecentPaths(State()), ElementsAre(File("mine.kvr")));
}

TEST_F(ProjectFilesTest, ACancelledSaveDialogDoesNothing) {
    Enter("SN", "4.5");
    EXPECT_FALSE(files_.SaveProjectAs());
    EXPECT_EQ(State().sProjectFile, "");
    EXPECT_TRUE(State().bProjectChanged);
    EXPECT_EQ(Get("SN"), 4.5);
    EXPECT_THAT(Messages(), IsEmpty());
    EXPECT_THAT(NamesIn(program_.home / "Projects"), IsEmpty());
    EXPECT_THAT(RecentPaths(State()), IsEmpty());
}

TEST_F(ProjectFilesTest, SavingAnUnnamedProjectAsksForAFileAndANamedOneDoesNot) {
    program_.host.dialogs.QueueAnswer(File("plan"));
    EXPECT_TRUE(Run().Save());
    EXPECT_EQ(program_.host.record.files.size(), 1U);
    Enter("SN", "4.5");
    EXPECT_TRUE(Run().Save());
    EXPECT_EQ(program_.host.record.files.size(), 1U);
    EXPECT_EQ(NumberInFile(File("plan.kvr"), "SN"), 4.5);
}

TEST_F(ProjectFilesTest, SaveAsReplacesAnExistingFileWithoutAQuestion) {
    WriteFile(File("old.kvr"), "something else");
    Enter("SN", "4.5");
    EXPECT_TRUE(Run().SaveAs(File("old.kvr")));
    EXPECT_THAT(Messages(), IsEmpty());
    EXPECT_EQ(NumberInFile(File("old.kvr"), "SN"), 4.5);
}

TEST_F(ProjectFilesTest, AfterASaveWorkCopyAndFileAreEqualByteForByte) {
    for (const char* value : {"4.5", "", "12345.678"}) {
        SCOPED_TRACE(value);
        Enter("SN", value);
        Enter("Agency", std::string(200, 'x') + value);
        ASSERT_TRUE(Run().SaveAs(File("plan.kvr")));
        EXPECT_EQ(ReadFile(program_.home / "kvrwork.tmp"), ReadFile(File("plan.kvr")));
    }
    ASSERT_TRUE(Run().OpenProject(File("plan.kvr")));
    EXPECT_EQ(ReadFile(program_.home / "kvrwork.tmp"), ReadFile(File("plan.kvr")));
}

TEST_F(ProjectFilesTest, NoFileStaysBesideAProjectOrTheWorkCopy) {
    Enter("SN", "4.5");
    ASSERT_TRUE(Run().SaveAs(File("plan.kvr")));
    EXPECT_THAT(NamesIn(folder_.path()), ElementsAre("plan.kvr"));
    EXPECT_THAT(NamesIn(program_.home.path()),
                ElementsAre("DataBase", "Languages", "Projects", "Reports", "kvor.ini", "kvrwork.lck",
                            "kvrwork.tmp", "kvrwork.tpl"))
        << "and the folder for projects, which Save As makes";
    EXPECT_THAT(NamesIn(program_.home / "DataBase"), ElementsAre("Kelvor.mdb", "custom.tpl"));
}

TEST_F(ProjectFilesTest, SavingNamesTheProjectAndChangesNothingElse) {
    Run().ChooseUnits(true);
    Enter("RM", "34.47378645");
    const CellValue before = *program_.store().FindCell("RM", 1, 1);
    ASSERT_TRUE(Run().SaveAs(File("plan.kvr")));
    EXPECT_EQ(State().sProjectFile, File("plan.kvr"));
    EXPECT_EQ(State().caption, "KVR - " + File("plan.kvr"));
    EXPECT_TRUE(program_.units().bMetric());
    EXPECT_EQ(*program_.store().FindCell("RM", 1, 1), before);
    EXPECT_THAT(RecentPaths(State()), ElementsAre(File("plan.kvr")));
}

TEST_F(ProjectFilesTest, AnyNameThatTheMachineAllowsServes) {
    const std::vector<std::string> names = {
        "under_score.kvr",
        "O'Brien.kvr",
        "two  blanks .kvr",
        " leading.kvr",
        "\xC3\xA4\xC3\xB6\xC3\xBC\xC3\x9F.kvr",
        "50% & more; $HOME~.kvr",
        "\"quoted\".kvr",
        "-rf.kvr",
        "new\nline.kvr",
        "back\\slash.kvr",
        "*.kvr",
        std::string(196, 'n') + ".kvr",
        std::string(251, 'm') + ".kvr",
    };
    for (const std::string& name : names) {
        SCOPED_TRACE(name);
        Enter("Agency", name);
        ASSERT_TRUE(Run().SaveAs(File(name)));
        ASSERT_TRUE(Run().NewProject());
        EXPECT_EQ(program_.store().FindCell("Agency", 1, 1)->text, std::nullopt);
        ASSERT_TRUE(Run().OpenProject(File(name)));
        EXPECT_EQ(program_.store().FindCell("Agency", 1, 1)->text, name);
        ASSERT_TRUE(Run().NewProject());
        EXPECT_THAT(Messages(), IsEmpty());
    }
}

TEST_F(ProjectFilesTest, AProjectNamedByARelativePathIsKnownByItsFullPath) {
    const Path before = std::filesystem::current_path();
    std::filesystem::current_path(folder_.path());
    const bool saved = Run().SaveAs("plan");
    std::filesystem::current_path(before);
    ASSERT_TRUE(saved);
    EXPECT_TRUE(Path(State().sProjectFile).is_absolute());
    EXPECT_TRUE(std::filesystem::equivalent(State().sProjectFile, File("plan.kvr")));
    EXPECT_EQ(State().caption, "KVR - " + State().sProjectFile);
    EXPECT_THAT(RecentPaths(State()), ElementsAre(State().sProjectFile));
}

TEST_F(ProjectFilesTest, AFileHasOnePathHoweverItIsNamed) {
    std::filesystem::create_directories(File("roads/north"));
    const std::string plain = File("roads/plan.kvr");
    ASSERT_TRUE(Run().SaveAs(plain));
    for (const char* name : {"roads/./plan.kvr", "roads/north/../plan.kvr", "./roads//plan.kvr"}) {
        ASSERT_TRUE(Run().OpenProject(File(name))) << name;
        EXPECT_EQ(State().sProjectFile, plain) << name;
    }
    EXPECT_THAT(RecentPaths(State()), ElementsAre(plain));
    // Behind a link, ".." is the folder above the one that the link means.
    std::filesystem::create_directories(File("elsewhere/deep"));
    std::filesystem::create_symlink(File("elsewhere/deep"), File("roads/link"));
    ASSERT_TRUE(Run().SaveAs(File("roads/link/../plan.kvr")));
    EXPECT_TRUE(std::filesystem::exists(File("elsewhere/plan.kvr")));
    EXPECT_TRUE(std::filesystem::equivalent(State().sProjectFile, File("elsewhere/plan.kvr")));
}

// --- Links, folders and other targets ------------------------------------------------------------

TEST_F(ProjectFilesTest, SavingOntoALinkWritesTheFileBehindIt) {
    WriteFile(File("behind.kvr"), "old");
    std::filesystem::create_symlink(File("behind.kvr"), File("link.kvr"));
    Enter("SN", "4.5");
    ASSERT_TRUE(Run().SaveAs(File("link.kvr")));
    EXPECT_TRUE(std::filesystem::is_symlink(File("link.kvr")));
    EXPECT_FALSE(std::filesystem::is_symlink(File("behind.kvr")));
    EXPECT_EQ(NumberInFile(File("behind.kvr"), "SN"), 4.5);
    EXPECT_EQ(State().sProjectFile, File("link.kvr"));
    EXPECT_THAT(NamesIn(folder_.path()), ElementsAre("behind.kvr", "link.kvr"));
}

TEST_F(ProjectFilesTest, SavingOntoALinkThatLeadsNowhereMakesItsFile) {
    std::filesystem::create_symlink("behind.kvr", File("link.kvr"));
    ASSERT_TRUE(Run().SaveAs(File("link.kvr")));
    EXPECT_TRUE(std::filesystem::is_symlink(File("link.kvr")));
    EXPECT_TRUE(std::filesystem::is_regular_file(File("behind.kvr")));
}

TEST_F(ProjectFilesTest, ASaveOntoWhatIsNoFileFailsAndTheProjectStaysOpen) {
    ASSERT_TRUE(Run().SaveAs(File("plan.kvr")));
    const std::string saved = ReadFile(File("plan.kvr"));
    Enter("SN", "4.5");
    Enter("Agency", "County");
    std::filesystem::create_directory(File("folder.kvr"));
    ASSERT_EQ(::mkfifo(File("pipe.kvr").c_str(), 0600), 0);
    std::filesystem::create_symlink(program_.home / "kvrwork.tmp", File("work.kvr"));
    std::filesystem::create_symlink(File("loop.kvr"), File("loop.kvr"));
    const std::string longName(300, 'n');
    const std::vector<std::pair<std::string, std::string>> targets = {
        {"folder.kvr", "Is a directory"},
        {"nowhere/plan.kvr", "No such file or directory"},
        {"plan.kvr/plan.kvr", "Not a directory"},
        {"pipe.kvr", "Not a regular file"},
        {"work.kvr", "it is the program's own work copy"},
        {"loop.kvr", "Too many levels of symbolic links"},
        {longName + ".kvr", "File name too long"},
    };
    for (const auto& [name, reason] : targets) {
        SCOPED_TRACE(name);
        EXPECT_FALSE(Run().SaveAs(File(name)));
        EXPECT_THAT(Messages(), ElementsAre("Error saving to " + File(name) + ": " + reason));
        EXPECT_EQ(State().sProjectFile, File("plan.kvr"));
        EXPECT_EQ(State().caption, "KVR - " + File("plan.kvr"));
        EXPECT_TRUE(State().bProjectChanged);
        EXPECT_EQ(Get("SN"), 4.5);
        EXPECT_THAT(RecentPaths(State()), ElementsAre(File("plan.kvr")));
    }
    EXPECT_EQ(ReadFile(File("plan.kvr")), saved);
    EXPECT_THAT(NamesIn(File("folder.kvr")), IsEmpty());
    EXPECT_THAT(NamesIn(folder_.path()),
                ElementsAre("folder.kvr", "loop.kvr", "pipe.kvr", "plan.kvr", "work.kvr"));

    // Save As from there works, with all values.
    ASSERT_TRUE(Run().SaveAs(File("rescued.kvr")));
    EXPECT_FALSE(State().bProjectChanged);
    ASSERT_TRUE(Run().OpenProject(File("rescued.kvr")));
    EXPECT_EQ(Get("SN"), 4.5);
    EXPECT_EQ(program_.store().FindCell("Agency", 1, 1)->text, "County");
}

TEST_F(ProjectFilesTest, ValuesThatTheWorkCopyCouldNotTakeReachTheFileOnceItCan) {
    ASSERT_TRUE(Run().SaveAs(File("plan.kvr")));
    const std::string saved = ReadFile(File("plan.kvr"));
    // A folder in place of the rollback journal: no write to the work copy can begin.
    const Path journal = program_.home / "kvrwork.tmp-journal";
    std::filesystem::create_directory(journal);
    Enter("SN", "4.5");
    EXPECT_EQ(Get("SN"), 4.5);
    EXPECT_FALSE(Run().Save());
    EXPECT_THAT(Messages(),
                ElementsAre("Error saving to " + File("plan.kvr") + ": unable to open database file"));
    EXPECT_EQ(ReadFile(File("plan.kvr")), saved);
    EXPECT_EQ(Get("SN"), 4.5);
    EXPECT_TRUE(State().bProjectChanged);

    std::filesystem::remove(journal);
    EXPECT_TRUE(Run().Save());
    EXPECT_EQ(NumberInFile(File("plan.kvr"), "SN"), 4.5);
}

// --- New -----------------------------------------------------------------------------------------

TEST_F(ProjectFilesTest, NewOnANamedProjectOverwritesItsFileAndAsksNothing) {
    ASSERT_TRUE(Run().SaveAs(File("plan.kvr")));
    Enter("SN", "4.5");
    Run().ChooseUnits(true);
    ASSERT_TRUE(Run().NewProject());
    EXPECT_EQ(NumberInFile(File("plan.kvr"), "SN"), 4.5);
    EXPECT_EQ(NumberInFile(File("plan.kvr"), "MetricMode"), -1.0);
    EXPECT_EQ(State().sProjectFile, "");
    EXPECT_EQ(State().caption, "KVR - " + File("plan.kvr"))
        << "a new project leaves the last caption in place";
    EXPECT_EQ(Get("SN"), 0.0);
    EXPECT_FALSE(State().bProjectChanged);
    EXPECT_THAT(Messages(), IsEmpty());
    EXPECT_THAT(program_.host.record.files, IsEmpty());
    EXPECT_THAT(NamesIn(folder_.path()), ElementsAre("plan.kvr"));
}

TEST_F(ProjectFilesTest, NewDropsAnUnnamedProjectWithoutAQuestion) {
    Enter("SN", "4.5");
    const std::string pristine = ReadFile(program_.home / "kvrwork.tpl");
    ASSERT_TRUE(Run().NewProject());
    EXPECT_EQ(Get("SN"), 0.0);
    EXPECT_FALSE(State().bProjectChanged);
    EXPECT_EQ(ReadFile(program_.home / "kvrwork.tmp"), pristine);
    EXPECT_THAT(Messages(), IsEmpty());
    EXPECT_THAT(RecentPaths(State()), IsEmpty());
}

TEST_F(ProjectFilesTest, NewSaysNothingIfTheNamedFileCannotBeWritten) {
    std::filesystem::create_directory(File("gone"));
    ASSERT_TRUE(Run().SaveAs(File("gone/plan.kvr")));
    std::filesystem::remove_all(File("gone"));
    Enter("SN", "4.5");
    EXPECT_TRUE(Run().NewProject());
    EXPECT_THAT(Messages(), IsEmpty());
    EXPECT_EQ(State().sProjectFile, "");
    EXPECT_EQ(Get("SN"), 0.0);
    EXPECT_THAT(NamesIn(folder_.path()), IsEmpty());
}

TEST_F(ProjectFilesTest, NewPutsNoWorkCopyThatLacksChangesOverAFile) {
    ASSERT_TRUE(Run().SaveAs(File("plan.kvr")));
    const std::string saved = ReadFile(File("plan.kvr"));
    // A folder in place of the rollback journal: no write to the work copy can begin.
    std::filesystem::create_directory(program_.home / "kvrwork.tmp-journal");
    Enter("SN", "4.5");
    EXPECT_TRUE(Run().NewProject());
    EXPECT_EQ(ReadFile(File("plan.kvr")), saved);
    // Neither the file nor the work copy has the change, so that it stays open.
    EXPECT_THAT(Messages(), ElementsAre("What is open could not be kept aside: unable to open database "
                                        "file.\n\nPlease save it first."));
    EXPECT_EQ(Get("SN"), 4.5);
    std::filesystem::remove(program_.home / "kvrwork.tmp-journal");
    EXPECT_TRUE(Run().NewProject());
    EXPECT_EQ(NumberInFile(File("plan.kvr"), "SN"), 4.5);
    EXPECT_EQ(Get("SN"), 0.0);
}

TEST_F(ProjectFilesTest, AFreshProjectComesUpInTheUnitsOfItsTemplate) {
    Run().ChooseUnits(true);
    ASSERT_TRUE(Run().NewProject());
    EXPECT_FALSE(program_.units().bMetric());
    RunSql(program_.home / "kvrwork.tpl", "UPDATE Project SET RValue = -1 WHERE Name = 'MetricMode'");
    ASSERT_TRUE(Run().NewProject());
    EXPECT_TRUE(program_.units().bMetric());
}

TEST_F(ProjectFilesTest, NothingThatAnEarlierRunLeftBesideTheWorkCopyReachesAProject) {
    // A run that was killed in the middle of a long event leaves a journal of its own project's pages.
    const Path other = File("other.tmp");
    std::filesystem::copy_file(program_.home / "kvrwork.tpl", other);
    RunSql(other, "UPDATE Project SET RValue = 777 WHERE Name = 'SN'");
    {
        SQLite::Database killed(other.string(), SQLite::OPEN_READWRITE);
        killed.exec("PRAGMA synchronous = OFF; PRAGMA cache_size = 2; BEGIN; UPDATE Project SET RValue = 5");
        ASSERT_GT(std::filesystem::file_size(other.string() + "-journal"), 4096U);
        std::filesystem::copy_file(other.string() + "-journal", File("journal"));
    }
    ASSERT_TRUE(Run().SaveAs(File("plan.kvr")));
    const std::string saved = ReadFile(File("plan.kvr"));
    for (const bool open : {false, true}) {
        SCOPED_TRACE(open);
        TestHome home;
        TestHost host;
        for (const char* ending : {"-journal", "-wal", "-shm"}) {
            std::filesystem::copy_file(File("journal"), home / (std::string("kvrwork.tmp") + ending));
        }
        Program next(host.host(), home.home());
        ASSERT_EQ(next.Start(open ? File("plan.kvr") : ""), StartResult::Running);
        EXPECT_EQ(next.state().dbWork.GetVar("SN"), 0.0);
        EXPECT_EQ(ReadFile(home / "kvrwork.tmp"), open ? saved : ReadFile(home / "kvrwork.tpl"));
        EXPECT_THAT(NamesIn(home.path()), ElementsAre("DataBase", "Languages", "Reports", "kvor.ini",
                                                      "kvrwork.lck", "kvrwork.tmp", "kvrwork.tpl"));
    }
}

TEST_F(ProjectFilesTest, ALinkInPlaceOfTheWorkCopyIsNotFollowed) {
    for (const bool leadsSomewhere : {true, false}) {
        SCOPED_TRACE(leadsSomewhere);
        TestHome home;
        TestHost host;
        const std::string victim = File("victim");
        std::filesystem::remove(victim);
        if (leadsSomewhere) WriteFile(victim, "precious");
        std::filesystem::create_symlink(victim, home / "kvrwork.tmp");
        Program next(host.host(), home.home());
        ASSERT_EQ(next.Start(""), StartResult::Running);
        EXPECT_FALSE(std::filesystem::is_symlink(home / "kvrwork.tmp"));
        EXPECT_EQ(std::filesystem::exists(victim), leadsSomewhere);
        if (leadsSomewhere) {
            EXPECT_EQ(ReadFile(victim), "precious");
        }
    }
}

// --- Open ----------------------------------------------------------------------------------------

TEST_F(ProjectFilesTest, OpeningGivesTheValuesTheNameAndTheCaption) {
    Enter("SN", "4.5");
    ASSERT_TRUE(Run().SaveAs(File("plan.kvr")));
    ASSERT_TRUE(Run().NewProject());
    Enter("SN", "9");
    ASSERT_TRUE(Run().OpenProject(File("plan.kvr")));
    EXPECT_EQ(Get("SN"), 4.5);
    EXPECT_EQ(State().sProjectFile, File("plan.kvr"));
    EXPECT_EQ(State().caption, "KVR - " + File("plan.kvr"));
    EXPECT_FALSE(State().bProjectChanged);
    EXPECT_THAT(Messages(), IsEmpty());
}

TEST_F(ProjectFilesTest, OpeningAsksNothingAndDropsWhatWasNotSaved) {
    ASSERT_TRUE(Run().SaveAs(File("a.kvr")));
    ASSERT_TRUE(Run().SaveAs(File("b.kvr")));
    const std::string saved = ReadFile(File("b.kvr"));
    Enter("SN", "4.5");
    ASSERT_TRUE(Run().OpenProject(File("a.kvr")));
    EXPECT_EQ(ReadFile(File("b.kvr")), saved);
    EXPECT_THAT(Messages(), IsEmpty());
}

TEST_F(ProjectFilesTest, EditingNeverTouchesTheFileBeforeASave) {
    ASSERT_TRUE(Run().SaveAs(File("plan.kvr")));
    const std::string before = Checksum(folder_.path());
    ASSERT_TRUE(Run().OpenProject(File("plan.kvr")));
    Enter("SN", "4.5");
    EXPECT_EQ(Checksum(folder_.path()), before);
}

TEST_F(ProjectFilesTest, AProjectSavedInMetricUnitsReopensInThem) {
    Run().ChooseUnits(true);
    Enter("DEPTH", "254");
    ASSERT_TRUE(Run().SaveAs(File("metric.kvr")));
    EXPECT_EQ(NumberInFile(File("metric.kvr"), "MetricMode"), -1.0);
    ASSERT_TRUE(Run().NewProject());
    ASSERT_FALSE(program_.units().bMetric());
    ASSERT_TRUE(Run().SaveAs(File("english.kvr")));
    EXPECT_EQ(NumberInFile(File("english.kvr"), "MetricMode"), 0.0);

    ASSERT_TRUE(Run().OpenProject(File("metric.kvr")));
    EXPECT_TRUE(program_.units().bMetric());
    EXPECT_EQ(Get("DEPTH"), 10.0);
    EXPECT_EQ(program_.units().UnitLabel("DEPTH"), "mm");
    ASSERT_TRUE(Run().OpenProject(File("english.kvr")));
    EXPECT_FALSE(program_.units().bMetric());
}

TEST_F(ProjectFilesTest, OnlyMinusOneMeansMetric) {
    for (const char* value : {"1", "0", "NULL", "-2", "'M'"}) {
        SCOPED_TRACE(value);
        std::filesystem::copy_file(program_.home / "kvrwork.tpl", File("x.kvr"),
                                   std::filesystem::copy_options::overwrite_existing);
        RunSql(File("x.kvr"),
               std::string("UPDATE Project SET RValue = ") + value + " WHERE Name = 'MetricMode'");
        Run().ChooseUnits(true);
        ASSERT_TRUE(Run().OpenProject(File("x.kvr")));
        EXPECT_FALSE(program_.units().bMetric());
    }
}

TEST_F(ProjectFilesTest, TheOpenDialogStartsInTheProjectsFolderWithItsFilter) {
    ASSERT_TRUE(Run().SaveAs(File("plan.kvr")));
    std::filesystem::remove(program_.home / "Projects");
    program_.host.dialogs.QueueAnswer(File("plan.kvr"));
    EXPECT_TRUE(files_.OpenProjectDialog());
    EXPECT_TRUE(std::filesystem::is_directory(program_.home / "Projects"));
    ASSERT_EQ(program_.host.record.files.size(), 1U);
    const FileRequest& request = program_.host.record.files[0];
    EXPECT_EQ(request.kind, FileRequest::Kind::Open);
    EXPECT_EQ(request.folder, program_.home / "Projects");
    EXPECT_EQ(request.filter, "KVR projects (*.kvr)|*.kvr|All Files (*.*)|*.*");
    EXPECT_EQ(State().sProjectFile, File("plan.kvr"));
}

TEST_F(ProjectFilesTest, ACancelledOpenDialogLeavesAFreshProjectAndTheWorkIsGone) {
    ASSERT_TRUE(Run().SaveAs(File("plan.kvr")));
    const std::string saved = ReadFile(File("plan.kvr"));
    Enter("SN", "4.5");
    EXPECT_TRUE(files_.OpenProjectDialog());
    EXPECT_EQ(State().sProjectFile, "");
    EXPECT_EQ(Get("SN"), 0.0);
    EXPECT_FALSE(State().bProjectChanged);
    EXPECT_EQ(ReadFile(File("plan.kvr")), saved);

    Enter("SN", "4.5");
    EXPECT_TRUE(files_.OpenProjectDialog());
    EXPECT_EQ(Get("SN"), 0.0);
    EXPECT_FALSE(State().bProjectChanged);
    EXPECT_THAT(Messages(), IsEmpty());
    EXPECT_THAT(NamesIn(folder_.path()), ElementsAre("plan.kvr"));
}

TEST_F(ProjectFilesTest, ATextFileWithTheRightEndingIsRefusedAndStillListedAsRecent) {
    WriteFile(File("text.kvr"), "Dear colleague,\n");
    program_.host.dialogs.QueueAnswer(File("text.kvr"));
    EXPECT_FALSE(files_.OpenProjectDialog());
    EXPECT_THAT(Messages(), ElementsAre("File " + File("text.kvr") + " is not a kvor file"));
    EXPECT_THAT(RecentPaths(State()), ElementsAre(File("text.kvr")));
    EXPECT_EQ(ReadFile(File("text.kvr")), "Dear colleague,\n");
}

// --- After a failed open -------------------------------------------------------------------------

class AfterAFailedOpenTest : public ProjectFilesTest {
  protected:
    AfterAFailedOpenTest() {
        Enter("SN", "4.5");
        Run().SaveAs(File("plan.kvr"));
        saved_ = ReadFile(File("plan.kvr"));
        Enter("SN", "5.5");
        WriteFile(File("text.kvr"), "no project");
        Run().OpenProject(File("text.kvr"));
        opened_ = Messages();
    }

    std::string saved_;
    std::vector<std::string> opened_;
};

TEST_F(AfterAFailedOpenTest, NoProjectIsOpenAndNameAndCaptionStand) {
    EXPECT_THAT(opened_, ElementsAre("File " + File("text.kvr") + " is not a kvor file"));
    EXPECT_FALSE(program_.store().IsOpen());
    EXPECT_EQ(State().sProjectFile, File("plan.kvr"));
    EXPECT_EQ(State().caption, "KVR - " + File("plan.kvr"));
    EXPECT_EQ(ReadFile(program_.home / "kvrwork.tmp"), "no project") << "the work copy is the rejected file";
}

TEST_F(AfterAFailedOpenTest, SavingCopiesNothingAndSaysThatNoProjectIsOpen) {
    EXPECT_FALSE(Run().Save());
    EXPECT_FALSE(Run().SaveAs(File("other.kvr")));
    EXPECT_FALSE(Run().SaveAs(File("plan.kvr")));
    program_.host.dialogs.QueueAnswer(File("third"));
    EXPECT_FALSE(files_.SaveProjectAs());
    EXPECT_THAT(Messages(), ElementsAre("Error saving to " + File("plan.kvr") + ": no project is open",
                                        "Error saving to " + File("other.kvr") + ": no project is open",
                                        "Error saving to " + File("plan.kvr") + ": no project is open",
                                        "Error saving to " + File("third.kvr") + ": no project is open"));
    EXPECT_EQ(ReadFile(File("plan.kvr")), saved_);
    EXPECT_THAT(NamesIn(folder_.path()), ElementsAre("plan.kvr", "text.kvr"));
    EXPECT_THAT(RecentPaths(State()), ElementsAre(File("text.kvr"), File("plan.kvr")));
}

TEST_F(AfterAFailedOpenTest, NewEndsUnnamedAndCopiesNothingOverTheFormerFile) {
    EXPECT_TRUE(Run().NewProject());
    EXPECT_EQ(State().sProjectFile, "");
    EXPECT_EQ(ReadFile(File("plan.kvr")), saved_);
    EXPECT_TRUE(program_.store().IsOpen());
    EXPECT_EQ(Get("SN"), 0.0);
    EXPECT_TRUE(Run().NewProject());
    EXPECT_EQ(ReadFile(File("plan.kvr")), saved_);
    EXPECT_THAT(Messages(), IsEmpty());
}

TEST_F(AfterAFailedOpenTest, ACancelledOpenDialogGivesAFreshProject) {
    EXPECT_TRUE(files_.OpenProjectDialog());
    EXPECT_EQ(State().sProjectFile, "");
    EXPECT_TRUE(program_.store().IsOpen());
    EXPECT_EQ(ReadFile(File("plan.kvr")), saved_);
}

TEST_F(AfterAFailedOpenTest, AnotherOpenIsAWayOut) {
    EXPECT_TRUE(Run().OpenProject(File("plan.kvr")));
    EXPECT_EQ(Get("SN"), 4.5);
    EXPECT_THAT(Messages(), IsEmpty());
}

TEST_F(AfterAFailedOpenTest, EntriesAndUnitsHaveNoEffect) {
    const bool changed = State().bProjectChanged;
    Enter("SN", "6");
    Run().ChooseUnits(true);
    EXPECT_EQ(State().bProjectChanged, changed);
    EXPECT_EQ(program_.store().FindCell("SN", 1, 1), nullptr);
    EXPECT_TRUE(Run().NewProject());
    EXPECT_EQ(Get("SN"), 0.0);
    EXPECT_FALSE(program_.units().bMetric());
}

TEST_F(AfterAFailedOpenTest, ExitOffersToSaveAndTouchesNothing) {
    const std::string question =
        "The contents of " + File("plan.kvr") + " has changed. Do you want to save your changes?";
    EXPECT_TRUE(Run().Raise({.kind = UserEvent::Kind::Menu, .name = "MenuFileExit", .text = ""}));
    EXPECT_THAT(Messages(),
                ElementsAre(question, "Error saving to " + File("plan.kvr") + ": no project is open"));
    EXPECT_FALSE(Run().ended()) << "a Yes that saved nothing ends nothing";
    program_.host.dialogs.QueueAnswer("no");
    EXPECT_TRUE(Run().Raise({.kind = UserEvent::Kind::Menu, .name = "MenuFileExit", .text = ""}));
    EXPECT_THAT(Messages(), ElementsAre(question));
    EXPECT_TRUE(Run().ended());
    EXPECT_EQ(ReadFile(File("plan.kvr")), saved_);
}

// --- Changes -------------------------------------------------------------------------------------

TEST_F(ProjectFilesTest, OnlyChangesOfTheUserCountAsChanges) {
    EXPECT_FALSE(State().bProjectChanged);
    Enter("NOSUCH", "1");
    EXPECT_FALSE(State().bProjectChanged);
    Run().ChooseUnits(true);
    Run().ChooseUnits(false);
    EXPECT_FALSE(State().bProjectChanged);
    Run().CalcField("SSN", "SSN");
    EXPECT_FALSE(State().bProjectChanged);
    EXPECT_EQ(Run().Solve("NoScreen", 1), 0);
    EXPECT_FALSE(State().bProjectChanged) << "a screen without an equation: nothing is touched";
    EXPECT_EQ(Run().Solve("DeF", 1), -1);
    EXPECT_FALSE(State().bProjectChanged) << "a refused solve writes nothing";
    Enter("SN", "4.5");
    EXPECT_TRUE(State().bProjectChanged);
}

TEST_F(ProjectFilesTest, ASolveCountsAsAChange) {
    const std::vector<std::pair<std::string, double>> inputs = {
        {"FLEXE18", 5e6}, {"FLEXREL", 95}, {"FLEXDEV", 0.45}, {"RM", 5000}, {"FLEXPO", 4.2}, {"FLEXPT", 2.5}};
    for (const auto& [name, value] : inputs) program_.Set(name, value);
    ASSERT_FALSE(State().bProjectChanged);
    EXPECT_EQ(Run().Solve("DeF", 1), 0);
    EXPECT_TRUE(State().bProjectChanged);
}

TEST_F(ProjectFilesTest, SaveOpenAndNewClearTheMarkOfChanges) {
    Enter("SN", "1");
    ASSERT_TRUE(Run().SaveAs(File("plan.kvr")));
    EXPECT_FALSE(State().bProjectChanged);
    Enter("SN", "2");
    ASSERT_TRUE(Run().Save());
    EXPECT_FALSE(State().bProjectChanged);
    Enter("SN", "3");
    ASSERT_TRUE(Run().OpenProject(File("plan.kvr")));
    EXPECT_FALSE(State().bProjectChanged);
    Enter("SN", "4");
    ASSERT_TRUE(Run().NewProject());
    EXPECT_FALSE(State().bProjectChanged);
}

}  // namespace
}  // namespace kelvor::test
