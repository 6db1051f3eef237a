// Work that is dropped, or lost with the process, can be had back.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <csignal>
#include <ctime>

#include "shell/main_window.h"
#include "shell/recovery.h"
#include "support/child_process.h"
#include "support/file_system_doubles.h"
#include "support/project_fixture.h"
#include "support/small_home.h"

namespace kelvor::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

class RecoveryTest : public ProjectTest {
  protected:
    RecoveryTest() {
        ::setenv("TZ", "UTC", 1);
        ::tzset();
    }

    const std::vector<KeptProject>& Kept() { return State().keptWork; }
    bool Choose(int place) { return Run().Raise({UserEvent::Kind::Menu, kRecoverEntry, {}, place}); }

    /// The captions of the entries that are visible.
    std::vector<std::string> Captions() {
        std::vector<std::string> captions;
        for (const MenuEntry& entry : Run().Menus()) {
            if (entry.name == kRecoverEntry && entry.visible) captions.push_back(entry.caption);
        }
        return captions;
    }
};

// --- What is kept ----------------------------------------------------------------------------------------

TEST_F(RecoveryTest, NewKeepsAnUnnamedProjectThatWasChanged) {
    Enter("SN", "5.41");
    ASSERT_TRUE(Run().NewProject());
    EXPECT_EQ(Get("SN"), 0.0);
    ASSERT_THAT(Kept(), SizeIs(1));
    EXPECT_EQ(Kept()[0].date, "2001-02-03 04:05:06.789");
    EXPECT_EQ(Kept()[0].formerPath, "");
    EXPECT_EQ(Kept()[0].contents, "Flexible Design Inputs: 5.41");
    EXPECT_EQ(NumberInFile(Kept()[0].file, "SN"), 5.41);
    EXPECT_THAT(Captions(),
                ElementsAre("&1 2001-02-03 04:05, unnamed project: Flexible Design Inputs: 5.41"));
    EXPECT_THAT(Messages(), IsEmpty());
}

TEST_F(RecoveryTest, WorkThatAFileHasIsNotKept) {
    ASSERT_TRUE(Run().NewProject());
    Enter("SN", "5.41");
    ASSERT_TRUE(Run().SaveAs(File("plan.kvr")));
    ASSERT_TRUE(Run().OpenProject(File("plan.kvr")));
    Enter("SN", "6");
    ASSERT_TRUE(Run().NewProject());  // which saves a project that has a name
    EXPECT_EQ(NumberInFile(File("plan.kvr"), "SN"), 6.0);
    EXPECT_FALSE(Run().OpenProject(File("none.kvr")));
    EXPECT_THAT(Kept(), IsEmpty());
    EXPECT_FALSE(std::filesystem::exists(program_.home / "Kept"));
}

TEST_F(RecoveryTest, OpenKeepsAChangedProjectWithItsFormerName) {
    Enter("SN", "5");
    ASSERT_TRUE(Run().SaveAs(File("plan.kvr")));
    ASSERT_TRUE(Run().SaveAs(File("other.kvr")));
    ASSERT_TRUE(Run().OpenProject(File("plan.kvr")));
    Enter("SN", "6");
    ASSERT_TRUE(Run().OpenProject(File("other.kvr")));
    ASSERT_THAT(Kept(), SizeIs(1));
    EXPECT_EQ(Kept()[0].formerPath, File("plan.kvr"));
    EXPECT_EQ(NumberInFile(Kept()[0].file, "SN"), 6.0);
    EXPECT_EQ(NumberInFile(File("plan.kvr"), "SN"), 5.0);
}

TEST_F(RecoveryTest, AFailedOpenAndACancelledOneKeepWhatTheyDrop) {
    Enter("SN", "5");
    EXPECT_FALSE(Run().OpenProject(File("none.kvr")));
    ASSERT_THAT(Kept(), SizeIs(1));
    EXPECT_EQ(NumberInFile(Kept()[0].file, "SN"), 5.0);
    ASSERT_TRUE(Run().NewProject());
    EXPECT_THAT(Kept(), SizeIs(1)) << "after a failed open there was nothing to drop";
    Enter("SN", "6");
    Run().Raise({UserEvent::Kind::Menu, "MenuFileOpen"});
    ASSERT_THAT(Kept(), SizeIs(2));
    EXPECT_EQ(NumberInFile(Kept()[0].file, "SN"), 6.0);
    EXPECT_EQ(Get("SN"), 0.0);
}

TEST_F(RecoveryTest, NewKeepsWhatItCannotSaveUnderItsName) {
    std::filesystem::create_directory(File("roads"));
    ASSERT_TRUE(Run().SaveAs(File("roads/plan.kvr")));
    Enter("SN", "5");
    std::filesystem::remove_all(File("roads"));
    ASSERT_TRUE(Run().NewProject());
    ASSERT_THAT(Kept(), SizeIs(1));
    EXPECT_EQ(Kept()[0].formerPath, File("roads/plan.kvr"));
    EXPECT_EQ(NumberInFile(Kept()[0].file, "SN"), 5.0);
}

TEST_F(RecoveryTest, TheLastTwentyAreKeptNewestFirst) {
    for (int i = 1; i <= 25; ++i) {
        if (i == 13) program_.host.clock.timestamp = "2001-02-03 04:05:07.000";
        Enter("SN", std::to_string(i));
        ASSERT_TRUE(Run().NewProject());
    }
    ASSERT_THAT(Kept(), SizeIs(20));
    EXPECT_EQ(NumberInFile(Kept().front().file, "SN"), 25.0);
    EXPECT_EQ(NumberInFile(Kept().back().file, "SN"), 6.0);
    EXPECT_THAT(NamesIn(program_.home / "Kept"), SizeIs(40)) << "a project and a note each";
    EXPECT_THAT(Captions(), SizeIs(20));
}

TEST_F(RecoveryTest, AProgramThatWorksOutsideItsHomeKeepsNothing) {
    const TestHome home;
    const TemporaryFolder work;
    TestHost host;
    Program program(host.host(), {home.path(), work.path()});
    ASSERT_EQ(program.Start(""), StartResult::Running);
    program.SetValue("SN", 1, 1, "5");
    ASSERT_TRUE(program.NewProject());
    EXPECT_THAT(program.state().keptWork, IsEmpty());
    EXPECT_FALSE(std::filesystem::exists(home / "Kept"));
    EXPECT_FALSE(std::filesystem::exists(work / "kvrwork.uns"));
}

TEST_F(RecoveryTest, WorkThatCannotBeKeptAsideStaysOpen) {
    WriteFile(program_.home / "Kept", "a file where the folder would be");
    Enter("SN", "5");
    WriteFile(File("other.kvr"), ReadFile(program_.home / "kvrwork.tpl"));
    EXPECT_FALSE(Run().OpenProject(File("other.kvr")));
    EXPECT_EQ(Get("SN"), 5.0);
    EXPECT_TRUE(State().bProjectChanged);
    EXPECT_TRUE(Run().NewProject());
    EXPECT_EQ(Get("SN"), 5.0);
    const std::string message =
        "What is open could not be kept aside: Not a directory.\n\nPlease save it first.";
    EXPECT_THAT(Messages(), ElementsAre(message, message));
    EXPECT_TRUE(Run().SaveAs(File("plan.kvr")));
    EXPECT_TRUE(Run().NewProject());
    EXPECT_EQ(Get("SN"), 0.0);
}

/// One listing of a folder fails.
class UnlistedOnce : public NativeFileSystem {
  public:
    [[nodiscard]] std::vector<std::string> Names(const Path& folder) const override {
        if (listings++ == failing) throw FileError("Input/output error");
        return NativeFileSystem::Names(folder);
    }

    mutable int listings = 0;
    int failing = -1;
};

TEST_F(RecoveryTest, WhatIsKeptIsNotWrittenOverOrDroppedWhereTheFolderCannotBeListed) {
    constexpr int kListings = 12;
    for (int failing = 0; failing < kListings; ++failing) {
        SCOPED_TRACE(failing);
        const TestHome home;
        TestHost host;
        UnlistedOnce files;
        host.fileSystem = &files;
        Program program(host.host(), home.home());
        ASSERT_EQ(program.Start(""), StartResult::Running);
        files.failing = files.listings + failing;
        for (const char* value : {"5", "6", "7"}) {  // all of one moment
            program.SetValue("SN", 1, 1, value);
            ASSERT_TRUE(program.NewProject());
        }
        ASSERT_THAT(program.state().keptWork, SizeIs(3));
        for (int i = 0; i < 3; ++i) {
            const Path& file = program.state().keptWork[static_cast<std::size_t>(i)].file;
            EXPECT_EQ(NumberInFile(file, "SN"), 7.0 - i);
        }
        EXPECT_THAT(host.record.TakeTexts(), IsEmpty());
    }
}

// --- Having it back ----------------------------------------------------------------------------------------

TEST_F(RecoveryTest, WhatIsRecoveredHasNoNameAndProposesItsFormerOne) {
    Enter("SN", "5");
    ASSERT_TRUE(Run().SaveAs(File("plan.kvr")));
    Enter("SN", "6");
    Run().Raise({UserEvent::Kind::Menu, "MenuFileOpen"});
    ASSERT_TRUE(Choose(0));
    EXPECT_EQ(Get("SN"), 6.0);
    EXPECT_EQ(State().sProjectFile, "");
    EXPECT_EQ(State().caption, "") << "like any project without a file";
    EXPECT_TRUE(State().bProjectChanged);
    EXPECT_EQ(State().formRegistry.CurrentForm->name(), "TabForm");
    program_.host.record.files.clear();
    program_.host.dialogs.QueueAnswer(File("again.kvr"));
    EXPECT_TRUE(Run().Save());
    ASSERT_THAT(program_.host.record.files, SizeIs(1));
    EXPECT_EQ(program_.host.record.files[0].suggested, File("plan.kvr"));
    EXPECT_EQ(NumberInFile(File("again.kvr"), "SN"), 6.0);
    EXPECT_EQ(NumberInFile(File("plan.kvr"), "SN"), 5.0);
    // Once it has a file it proposes the name of that.
    Run().Raise({UserEvent::Kind::Menu, "MenuFileSaveAs"});
    EXPECT_EQ(program_.host.record.files[1].suggested, "again.kvr");
}

TEST_F(RecoveryTest, RecoveringKeepsWhatWasOpenAndNothingTwice) {
    Enter("SN", "5");
    ASSERT_TRUE(Run().NewProject());
    Enter("SN", "6");
    ASSERT_TRUE(Run().Recover(0));
    EXPECT_EQ(Get("SN"), 5.0);
    EXPECT_THAT(Kept(), SizeIs(2));
    EXPECT_EQ(NumberInFile(Kept()[0].file, "SN"), 6.0);
    ASSERT_TRUE(Run().Recover(0));
    EXPECT_EQ(Get("SN"), 6.0);
    EXPECT_THAT(Kept(), SizeIs(2)) << "what was recovered and left alone is kept already";
    Enter("SN", "7");
    ASSERT_TRUE(Run().NewProject());
    EXPECT_THAT(Kept(), SizeIs(3));
}

TEST_F(RecoveryTest, TheOldestCanBeRecoveredThoughAnotherOneComes) {
    for (int i = 1; i <= 20; ++i) {
        Enter("SN", std::to_string(i));
        ASSERT_TRUE(Run().NewProject());
    }
    Enter("SN", "21");
    ASSERT_TRUE(Run().Recover(19));
    EXPECT_EQ(Get("SN"), 1.0);
    EXPECT_THAT(Kept(), SizeIs(20));
}

TEST_F(RecoveryTest, WhatCannotBeReadIsToldAndTheOpenProjectStays) {
    Enter("SN", "5");
    ASSERT_TRUE(Run().NewProject());
    Enter("SN", "6");
    const std::string path = Kept()[0].file.string();
    std::filesystem::remove(path);
    EXPECT_FALSE(Run().Recover(0));
    EXPECT_THAT(Messages(), ElementsAre("Error loading from " + path + ": No such file or directory"));
    EXPECT_EQ(Get("SN"), 6.0);
    EXPECT_FALSE(Run().Recover(20));
    EXPECT_FALSE(Run().Recover(-1));
    EXPECT_FALSE(Choose(5));
}

// --- After a crash -----------------------------------------------------------------------------------------

class CrashTest : public testing::Test {
  protected:
    /// A program that does something in its home and is then killed.
    void Crash(const std::function<void(Program&)>& work) const {
        const ChildEnd end = RunInChild([&]() -> std::string {
            TestHost host;
            Program program(host.host(), home_.home());
            if (program.Start("") != StartResult::Running) return "not started";
            work(program);
            std::raise(SIGKILL);
            return "survived";
        });
        ASSERT_EQ(end.signal, SIGKILL) << end.report;
    }

    [[nodiscard]] std::string File(const std::string& name) const { return (folder_ / name).string(); }

    SmallHome home_;
    TemporaryFolder folder_;
};

TEST_F(CrashTest, TheNextStartSaysSoAndOpensTheWorkIfWanted) {
    Crash([](Program& program) { program.SetValue("SN", 1, 1, "5.5"); });
    TestHost host;
    Program program(host.host(), home_.home());
    ASSERT_EQ(program.Start(""), StartResult::Running);
    ASSERT_THAT(host.record.messages, SizeIs(1));
    EXPECT_EQ(host.record.messages[0].style, MessageStyle::YesNo);
    EXPECT_THAT(host.record.messages[0].text,
                testing::AllOf(HasSubstr("Kelvor did not end properly the last time."),
                               HasSubstr("unnamed project: Flexible Design Inputs: 5.5")));
    EXPECT_EQ(program.state().dbWork.GetVar("SN"), 5.5);
    EXPECT_TRUE(program.state().bProjectChanged);
    EXPECT_EQ(program.state().sProjectFile, "");
}

/// A page of the work copy that never came to the disk.
void Tear(const Path& workCopy) {
    constexpr std::size_t kPage = 4096;
    std::string content = ReadFile(workCopy);
    ASSERT_GT(content.size(), 3 * kPage);
    content.replace(2 * kPage, kPage, std::string(kPage, '\0'));
    WriteFile(workCopy, content);
}

TEST_F(CrashTest, OfAWorkCopyThatAPowerCutHasTornTheCopyOfSecondsAgoIsKept) {
    Crash([](Program& program) {
        program.SetValue("SN", 1, 1, "5.5");
        program.BringToDisk();
        program.SetValue("SN", 1, 1, "6.5");
    });
    Tear(home_ / "kvrwork.tmp");
    TestHost host;
    Program program(host.host(), home_.home());
    ASSERT_EQ(program.Start(""), StartResult::Running);
    ASSERT_THAT(host.record.messages, SizeIs(1));
    EXPECT_THAT(host.record.messages[0].text, HasSubstr("Flexible Design Inputs: 5.5"));
    EXPECT_EQ(program.state().dbWork.GetVar("SN"), 5.5);
}

TEST_F(CrashTest, AWorkCopyThatIsWholeCountsAlsoBesideAnOlderCopy) {
    Crash([](Program& program) {
        program.SetValue("SN", 1, 1, "5.5");
        program.BringToDisk();
        program.SetValue("SN", 1, 1, "6.5");
    });
    TestHost host;
    Program program(host.host(), home_.home());
    ASSERT_EQ(program.Start(""), StartResult::Running);
    EXPECT_EQ(program.state().dbWork.GetVar("SN"), 6.5);
    ASSERT_TRUE(program.SaveAs(File("plan.kvr")));
    ASSERT_TRUE(program.NewProject());
    EXPECT_FALSE(std::filesystem::exists(home_ / "kvrwork.sav")) << "it goes with the work that it was of";
}

TEST_F(CrashTest, TheCopyGoesWithTheSaveAndIsTakenOfWorkAlone) {
    const Path snapshot = home_ / "kvrwork.sav";
    TestHost host;
    Program program(host.host(), home_.home());
    ASSERT_EQ(program.Start(""), StartResult::Running);
    program.BringToDisk();
    EXPECT_FALSE(std::filesystem::exists(snapshot)) << "nothing was done";
    program.SetValue("SN", 1, 1, "5.5");
    program.BringToDisk();
    ASSERT_TRUE(std::filesystem::exists(snapshot));
    const auto taken = std::filesystem::last_write_time(snapshot);
    program.BringToDisk();
    EXPECT_EQ(std::filesystem::last_write_time(snapshot), taken) << "nothing has changed";
    EXPECT_EQ(NumberInFile(snapshot, "SN"), 5.5);
    ASSERT_TRUE(program.SaveAs(File("plan.kvr")));
    program.SetValue("SN", 1, 1, "5.5");  // the end of an event takes note
    ASSERT_TRUE(program.Save());
    ASSERT_TRUE(program.NewProject());
    EXPECT_FALSE(std::filesystem::exists(snapshot));
}

TEST_F(CrashTest, AUserWhoDoesNotWantItNowHasItLater) {
    Crash([&](Program& program) {
        program.SaveAs(File("plan.kvr"));
        program.SetValue("SN", 1, 1, "5.5");
    });
    {
        TestHost host;
        host.dialogs.QueueAnswer("no");
        Program program(host.host(), home_.home());
        ASSERT_EQ(program.Start(""), StartResult::Running);
        EXPECT_EQ(program.state().dbWork.GetVar("SN"), 0.0);
    }
    TestHost host;
    Program program(host.host(), home_.home());
    ASSERT_EQ(program.Start(""), StartResult::Running);
    EXPECT_THAT(host.record.TakeTexts(), IsEmpty()) << "it is said once";
    ASSERT_THAT(program.state().keptWork, SizeIs(1));
    EXPECT_EQ(program.state().keptWork[0].formerPath, File("plan.kvr"));
    ASSERT_TRUE(program.Recover(0));
    EXPECT_EQ(program.state().dbWork.GetVar("SN"), 5.5);
}

TEST_F(CrashTest, AStartWithAProjectOpensThatAndSaysWhereTheOtherOneIs) {
    Crash([&](Program& program) {
        program.SaveAs(File("plan.kvr"));
        program.SetValue("SN", 1, 1, "5.5");
    });
    TestHost host;
    Program program(host.host(), home_.home());
    ASSERT_EQ(program.Start(File("plan.kvr")), StartResult::Running);
    ASSERT_THAT(host.record.messages, SizeIs(1));
    EXPECT_EQ(host.record.messages[0].style, MessageStyle::Ok);
    EXPECT_THAT(host.record.messages[0].text, HasSubstr("File > Recover opens it."));
    EXPECT_EQ(program.state().sProjectFile, File("plan.kvr"));
    EXPECT_EQ(program.state().dbWork.GetVar("SN"), 0.0);
}

TEST_F(CrashTest, NothingIsSaidIfNothingIsLost) {
    Crash([](Program&) {});
    Crash([&](Program& program) {
        program.SetValue("SN", 1, 1, "5.5");
        program.SaveAs(File("plan.kvr"));
    });
    Crash([](Program& program) { program.ChooseUnits(true); });
    {
        TestHost host;
        Program program(host.host(), home_.home());
        ASSERT_EQ(program.Start(""), StartResult::Running);
        program.SetValue("SN", 1, 1, "6");  // and the program ends in good order, without a save
        EXPECT_THAT(host.record.TakeTexts(), IsEmpty());
    }
    TestHost host;
    Program program(host.host(), home_.home());
    ASSERT_EQ(program.Start(""), StartResult::Running);
    EXPECT_THAT(host.record.TakeTexts(), IsEmpty());
    EXPECT_THAT(program.state().keptWork, IsEmpty());
}

TEST_F(CrashTest, ASecondProgramLeavesTheWorkOfTheFirst) {
    TestHost host;
    Program first(host.host(), home_.home());
    ASSERT_EQ(first.Start(""), StartResult::Running);
    first.SetValue("SN", 1, 1, "5.5");
    {
        TestHost other;
        Program second(other.host(), home_.home());
        EXPECT_EQ(second.Start(""), StartResult::Stopped);
        EXPECT_THAT(other.record.TakeTexts(), ElementsAre(HasSubstr("Kelvor is already running on ")));
    }
    EXPECT_FALSE(std::filesystem::exists(home_ / "Kept"));
    EXPECT_TRUE(std::filesystem::exists(home_ / "kvrwork.uns")) << "the second one took the first one's note";
    EXPECT_EQ(first.state().dbWork.GetVar("SN"), 5.5);
    EXPECT_TRUE(first.SaveAs(File("plan.kvr")));
    EXPECT_EQ(NumberInFile(File("plan.kvr"), "SN"), 5.5);
    EXPECT_FALSE(std::filesystem::exists(home_ / "kvrwork.uns"));
}

TEST_F(CrashTest, AProgramThatStopsByItsOwnRulesCountsAsCrashed) {
    {
        TestHost host;
        Program program(host.host(), home_.home());
        ASSERT_EQ(program.Start(""), StartResult::Running);
        program.SetValue("SN", 1, 1, "5.5");
        EXPECT_THROW(program.CalcCell("LDLayerStructNo", 99, 1, "LDLayerStructNo"), ProgramStop);
    }
    TestHost host;
    Program program(host.host(), home_.home());
    ASSERT_EQ(program.Start(""), StartResult::Running);
    EXPECT_THAT(host.record.TakeTexts(), SizeIs(1));
    EXPECT_EQ(program.state().dbWork.GetVar("SN"), 5.5);
}

TEST_F(CrashTest, WorkThatCannotBeKeptStopsTheStart) {
    Crash([](Program& program) { program.SetValue("SN", 1, 1, "5.5"); });
    WriteFile(home_ / "Kept", "a file where the folder would be");
    {
        TestHost host;
        Program program(host.host(), home_.home());
        EXPECT_EQ(program.Start(""), StartResult::Stopped);
        EXPECT_THAT(host.record.TakeTexts(), ElementsAre(HasSubstr("could not be kept aside: ")));
    }
    std::filesystem::remove(home_ / "Kept");
    TestHost host;
    Program program(host.host(), home_.home());
    ASSERT_EQ(program.Start(""), StartResult::Running);
    EXPECT_EQ(program.state().dbWork.GetVar("SN"), 5.5);
}

TEST_F(CrashTest, AWorkCopyThatCannotBeReadIsKeptAllTheSame) {
    Crash([](Program& program) { program.SetValue("SN", 1, 1, "5.5"); });
    WriteFile(home_ / "kvrwork.tmp", "torn by a power cut");
    TestHost host;
    host.dialogs.QueueAnswer("no");
    Program program(host.host(), home_.home());
    ASSERT_EQ(program.Start(""), StartResult::Running);
    ASSERT_THAT(program.state().keptWork, SizeIs(1));
    EXPECT_EQ(program.state().keptWork[0].contents, "cannot be read: file is not a database");
    EXPECT_EQ(ReadFile(program.state().keptWork[0].file), "torn by a power cut");
}

// --- The former version, and files that others change
// -------------------------------------------------------

class AttendedTest : public testing::Test {
  protected:
    AttendedTest() {
        Home home = home_.home();
        home.attended = true;
        program_.emplace(host_.host(), home);
        EXPECT_EQ(program_->Start(""), StartResult::Running);
    }

    [[nodiscard]] std::string File(const std::string& name) const { return (folder_ / name).string(); }
    void Enter(const char* value) { program_->SetValue("SN", 1, 1, value); }

    SmallHome home_;
    TemporaryFolder folder_;
    TestHost host_;
    std::optional<Program> program_;
};

TEST_F(AttendedTest, ASaveKeepsOneFormerVersionWithTheFilesPermissions) {
    const std::string plan = File("plan.kvr");
    Enter("4");
    ASSERT_TRUE(program_->SaveAs(plan));
    EXPECT_THAT(NamesIn(folder_.path()), ElementsAre("plan.kvr"));
    std::filesystem::permissions(plan, std::filesystem::perms(0600));
    Enter("5");
    ASSERT_TRUE(program_->Save());
    EXPECT_EQ(NumberInFile(plan + "~", "SN"), 4.0);
    EXPECT_EQ(std::filesystem::status(plan + "~").permissions(), std::filesystem::perms(0600));
    ASSERT_TRUE(program_->Save());
    EXPECT_EQ(NumberInFile(plan + "~", "SN"), 4.0) << "a save of the same is no new version";
    Enter("6");
    ASSERT_TRUE(program_->Save());
    EXPECT_EQ(NumberInFile(plan + "~", "SN"), 5.0);
    EXPECT_THAT(NamesIn(folder_.path()), ElementsAre("plan.kvr", "plan.kvr~"));
    EXPECT_THAT(host_.record.TakeTexts(), IsEmpty());
}

TEST_F(AttendedTest, TheFormerVersionCanBeSwitchedOff) {
    WriteFile(home_ / "kvor.ini", ReadFile(home_ / "kvor.ini") + "KeepFormerVersion=0\n");
    ASSERT_TRUE(program_->SaveAs(File("plan.kvr")));
    Enter("5");
    ASSERT_TRUE(program_->Save());
    EXPECT_THAT(NamesIn(folder_.path()), ElementsAre("plan.kvr"));
}

TEST_F(AttendedTest, AFormerVersionThatCannotBeKeptIsNoReasonNotToSave) {
    ASSERT_TRUE(program_->SaveAs(File("plan.kvr")));
    std::filesystem::create_directory(File("plan.kvr~"));
    Enter("5");
    EXPECT_TRUE(program_->Save());
    EXPECT_EQ(NumberInFile(File("plan.kvr"), "SN"), 5.0);
}

TEST_F(AttendedTest, AFileThatAnotherProgramChangedIsReplacedOnlyIfTheUserSaysSo) {
    const std::string plan = File("plan.kvr");
    ASSERT_TRUE(program_->SaveAs(plan));
    RunSql(plan, "UPDATE Project SET RValue = 9 WHERE Name = 'SN'");
    const std::string theirs = ReadFile(plan);
    Enter("5");
    host_.dialogs.QueueAnswer("no");
    EXPECT_FALSE(program_->Save());
    const std::string question =
        plan + " was changed by another program since it was opened. Do you want to replace it?";
    EXPECT_THAT(host_.record.TakeTexts(), ElementsAre(question));
    EXPECT_EQ(ReadFile(plan), theirs);
    EXPECT_TRUE(program_->state().bProjectChanged);
    host_.dialogs.QueueAnswer("yes");
    EXPECT_TRUE(program_->Save());
    EXPECT_THAT(host_.record.TakeTexts(), ElementsAre(question));
    EXPECT_EQ(NumberInFile(plan, "SN"), 5.0);
    EXPECT_EQ(ReadFile(plan + "~"), theirs);
    Enter("6");
    EXPECT_TRUE(program_->Save());
    EXPECT_THAT(host_.record.TakeTexts(), IsEmpty());
}

TEST_F(AttendedTest, NewKeepsTheWorkAsideIfTheOtherProgramsFileIsToStay) {
    const std::string plan = File("plan.kvr");
    ASSERT_TRUE(program_->SaveAs(plan));
    ASSERT_TRUE(program_->OpenProject(plan));
    WriteFile(plan, "theirs");
    Enter("5");
    host_.dialogs.QueueAnswer("no");
    EXPECT_TRUE(program_->NewProject());
    EXPECT_EQ(ReadFile(plan), "theirs");
    ASSERT_THAT(program_->state().keptWork, SizeIs(1));
    EXPECT_EQ(NumberInFile(program_->state().keptWork[0].file, "SN"), 5.0);
}

TEST_F(AttendedTest, AFileThatIsGoneIsSavedWithoutAQuestion) {
    const std::string plan = File("plan.kvr");
    ASSERT_TRUE(program_->SaveAs(plan));
    std::filesystem::remove(plan);
    Enter("5");
    EXPECT_TRUE(program_->Save());
    EXPECT_THAT(host_.record.TakeTexts(), IsEmpty());
}

}  // namespace
}  // namespace kelvor::test
