#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <new>

#include "forms/layout.h"
#include "shell/hub/hub.h"
#include "support/file_size_limit.h"
#include "support/file_system_doubles.h"
#include "support/project_fixture.h"
#include "support/small_home.h"

// Faults in the middle of an event. Each is told, nothing of what was there before is lost, and the next
// event works.

namespace kelvor::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

using Kind = UserEvent::Kind;

const char* const kReason = "the disk is on fire";
const std::string kMessage = std::string("The last step could not be carried out: ") + kReason;

[[noreturn]] void Fail() { throw std::runtime_error(kReason); }

/// Damages every page of a database but its first one, and tells SQLite that the file was changed, as if
/// another program had done so.
void Damage(const Path& file) {
    constexpr std::size_t kPage = 4096;
    constexpr std::size_t kChangeCounter = 24;  // its place in the first page, by the file format
    std::string content = ReadFile(file);
    ASSERT_GT(content.size(), kPage);
    std::fill(content.begin() + kPage, content.end(), '\xEE');
    ++content[kChangeCounter + 3];
    std::fstream(file, std::ios::in | std::ios::out | std::ios::binary)
        .write(content.data(), static_cast<std::streamsize>(content.size()));
}

/// A clock that fails.
class FailingClock : public FakeClock {
  public:
    double SteadySeconds() override { return failing ? (Fail(), 0.0) : FakeClock::SteadySeconds(); }
    std::string Timestamp() override { return failing ? (Fail(), "") : FakeClock::Timestamp(); }

    bool failing = false;
};

class EventFaultTest : public ProjectTest {
  protected:
    void Raise(UserEvent event) { EXPECT_TRUE(Run().Raise(event)) << event.name; }
    void Open(const char* form) { Raise({Kind::OpenForm, form}); }
    void Key(const char* key) { Raise({Kind::Key, key}); }
    void Type(const char* text) { Raise({Kind::Type, {}, text}); }
    [[nodiscard]] Form* Find(const char* form) { return State().formRegistry.Find(form); }
    [[nodiscard]] Form& Current() { return *State().formRegistry.CurrentForm; }

    std::vector<Message> TakeMessages() { return std::exchange(program_.host.record.messages, {}); }

    /// Exactly one message, of an error that says why.
    void ExpectError(const std::string& reason) {
        const std::vector<Message> messages = TakeMessages();
        ASSERT_EQ(messages.size(), 1U);
        EXPECT_EQ(messages[0].title, "Error");
        EXPECT_THAT(messages[0].text, testing::HasSubstr(reason));
    }

    /// The work goes on: a value is entered on a screen, stored and saved.
    void ExpectWorks() {
        EXPECT_THAT(State().dbWork.CompareWithWorkCopy(), IsEmpty());
        Open("DeF");
        ASSERT_EQ(Current().name(), "DeF");
        Raise({Kind::Focus, "FLEXREL"});
        Type("95");
        Key("Enter");
        EXPECT_EQ(Get("FLEXREL"), 95.0);
        EXPECT_TRUE(Run().SaveAs(File("works.kvr")));
        EXPECT_EQ(NumberInFile(File("works.kvr"), "FLEXREL"), 95.0);
        EXPECT_THAT(Messages(), IsEmpty());
    }

    /// Declares a form of one field, Agency, that does something at an event.
    void DeclareForm(FormEvent event, void (*act)(ScreenEvent&)) {
        FormType type;
        type.name = "Faulty";
        type.tag = "DeF";
        type.caption = "Faulty";
        type.layout = Rows({Fields({{"Agency"}, {"SN"}})});
        type.handlers = {{event, "", HandlerOrder::After, act}};
        State().formRegistry.Declare({type});
    }
};

// --- Databases ---------------------------------------------------------------------------------------------

TEST_F(EventFaultTest, AScreenWhoseListsCannotBeReadOpensWithEmptyOnes) {
    Enter("SN", "5");
    Damage(program_.home / "DataBase/custom.tpl");
    Open("LayDet");
    ExpectError("The drop-down lists cannot be read: database disk image is malformed");
    ASSERT_EQ(Current().name(), "LayDet");
    for (const GridColumn& column : Current().FindGrid()->grid->columns) EXPECT_THAT(column.items, IsEmpty());
    Raise({Kind::CloseForm, "LayDet"});
    EXPECT_EQ(Get("SN"), 5.0);
    ExpectWorks();
}

TEST_F(EventFaultTest, HelpThatCannotBeReadIsToldAndTheScreenStaysAsItWas) {
    Open("DeF");
    Raise({Kind::Focus, "FLEXREL"});
    Type("90");
    Damage(program_.home / "DataBase/Kelvor.mdb");
    Key("F1");
    ExpectError("database disk image is malformed");
    EXPECT_EQ(Current().name(), "DeF");
    EXPECT_EQ(Find("HelpForm"), nullptr);
    EXPECT_EQ(Current().focus->text, "90");
    EXPECT_TRUE(Current().fieldChanged());
    ExpectWorks();
}

TEST_F(EventFaultTest, ARecentListThatCannotBeReadCostsTheListAlone) {
    Enter("SN", "5");
    EXPECT_TRUE(Run().SaveAs(File("plan.kvr")));
    Damage(program_.home / "DataBase/Kelvor.mdb");
    EXPECT_TRUE(Run().OpenProject(File("plan.kvr")));
    EXPECT_EQ(Get("SN"), 5.0);
    EXPECT_THAT(State().recentMenu, IsEmpty());
    ExpectWorks();
}

TEST_F(EventFaultTest, AListThatCannotBeMaintainedKeepsTheProjectAndTheScreens) {
    Enter("SN", "5");
    Open("DeF");
    Damage(program_.home / "DataBase/custom.tpl");
    Raise({Kind::SwitchTab, {}, {}, static_cast<int>(HubTab::Lists)});
    Raise({Kind::ActivateForm, "DeF"});
    EXPECT_EQ(Get("SN"), 5.0);
    TakeMessages();
    ExpectWorks();
}

TEST_F(EventFaultTest, ADamagedProjectFileIsRefusedAndTheNextOneOpens) {
    Enter("SN", "5");
    ASSERT_TRUE(Run().SaveAs(File("whole.kvr")));
    ASSERT_TRUE(Run().SaveAs(File("broken.kvr")));
    Damage(File("broken.kvr"));
    EXPECT_FALSE(Run().OpenProject(File("broken.kvr")));
    EXPECT_THAT(Messages(), Not(IsEmpty()));
    EXPECT_TRUE(Run().OpenProject(File("whole.kvr")));
    EXPECT_EQ(Get("SN"), 5.0);
    ExpectWorks();
}

TEST_F(EventFaultTest, AWorkCopyThatCannotBeWrittenKeepsItsChangesForTheSave) {
    Enter("SN", "5");
    {
        const FileSizeLimit full(0);
        Enter("SN", "6");
        Enter("FLEXPO", "4.2");
    }
    EXPECT_EQ(Get("SN"), 6.0);
    EXPECT_EQ(Get("FLEXPO"), 4.2);
    EXPECT_TRUE(Run().SaveAs(File("plan.kvr")));
    EXPECT_EQ(NumberInFile(File("plan.kvr"), "SN"), 6.0);
    EXPECT_EQ(NumberInFile(File("plan.kvr"), "FLEXPO"), 4.2);
    EXPECT_THAT(Messages(), IsEmpty());
    ExpectWorks();
}

TEST_F(EventFaultTest, WhatIsUndoneWhileTheWorkCopyCannotBeWrittenIsUndoneForTheSaveToo) {
    Enter("SN", "5");
    DeclareForm(FormEvent::Load, [](ScreenEvent& event) {
        event.context.calc.store.SetVar("FLEXPO", 1.0);
        const FileSizeLimit full(0);
        event.context.calc.store.SetVar("SN", 7.0);
        event.context.calc.store.SetCell("Agency", 1, 1, {std::nullopt, std::string(20'000, 'x')});
        Fail();
    });
    Open("Faulty");
    EXPECT_THAT(Messages(), ElementsAre(kMessage));
    EXPECT_EQ(Get("SN"), 5.0);
    EXPECT_TRUE(Run().SaveAs(File("plan.kvr")));
    EXPECT_EQ(NumberInFile(File("plan.kvr"), "SN"), 5.0);
    EXPECT_EQ(NumberInFile(File("plan.kvr"), "FLEXPO"), std::nullopt);
    ExpectWorks();
}

// --- What an event wrote
// -------------------------------------------------------------------------------------

TEST_F(EventFaultTest, AFormThatFailsWhileItIsMadeIsNotOpenAndWroteNothing) {
    Enter("SN", "5");
    State().bProjectChanged = false;
    Open("DeF");
    DeclareForm(FormEvent::Load, [](ScreenEvent& event) {
        event.context.calc.store.SetVar("SN", 6.0);
        event.context.calc.store.SetVar("SN", 7.0);
        event.context.calc.store.SetVarText("Agency", "nobody");
        event.context.bProjectChanged = true;
        event.context.units.SetMetric(true);
        Fail();
    });
    Open("Faulty");
    ExpectError(kReason);
    EXPECT_EQ(Find("Faulty"), nullptr);
    EXPECT_EQ(Current().name(), "DeF");
    EXPECT_EQ(*State().dbWork.FindCell("SN", 1, 1), (CellValue{5.0, "5"}));
    EXPECT_FALSE(State().dbWork.FindCell("Agency", 1, 1)->IsFilled());
    EXPECT_FALSE(State().bProjectChanged);
    EXPECT_FALSE(State().units->bMetric());
    ExpectWorks();
}

TEST_F(EventFaultTest, WhatWasBeingTypedIsStillThereAndTheCellIsWhatItWas) {
    DeclareForm(FormEvent::Stored, [](ScreenEvent&) { Fail(); });
    Enter("SN", "5");
    State().bProjectChanged = false;
    Open("Faulty");
    Raise({Kind::Focus, "SN"});
    Type("6.5");
    Key("Enter");
    ExpectError(kReason);
    EXPECT_EQ(Get("SN"), 5.0);
    EXPECT_FALSE(State().bProjectChanged);
    EXPECT_EQ(Current().focus->name, "SN");
    EXPECT_EQ(Current().focus->text, "6.5");
    EXPECT_TRUE(Current().fieldChanged());
    Key("Esc");  // the stored value again
    EXPECT_EQ(Current().focus->text, "5.00");
    ExpectWorks();
}

TEST_F(EventFaultTest, AFormThatFailsWhileItClosesIsOpenAgain) {
    DeclareForm(FormEvent::Unload, [](ScreenEvent&) { Fail(); });
    Enter("SN", "5");
    Open("DeF");
    Open("Faulty");
    const Form* faulty = Find("Faulty");
    Raise({Kind::CloseForm, "Faulty"});
    ExpectError(kReason);
    EXPECT_EQ(Find("Faulty"), faulty);
    EXPECT_EQ(&Current(), faulty);
    EXPECT_TRUE(Run().NewProject()) << "the project that was open still is";
    ExpectError(kReason);
    EXPECT_EQ(Get("SN"), 5.0);
    EXPECT_EQ(Find("Faulty"), faulty);
    EXPECT_NE(Find("DeF"), nullptr);
}

TEST_F(EventFaultTest, AFailedSolveLeavesEveryTermAndSaysSo) {
    TestHome home;
    TestHost host;
    FailingClock clock;
    Program program({host.native, clock, host.dialogs, host.components}, home.home());
    ASSERT_EQ(program.Start(""), StartResult::Running);
    for (const auto& [name, value] :
         {std::pair("FLEXE18", "5000000"), std::pair("FLEXREL", "95"), std::pair("FLEXDEV", "0.45"),
          std::pair("RM", "5000"), std::pair("FLEXPO", "4.2"), std::pair("FLEXPT", "2.5")}) {
        program.SetValue(name, 1, 1, value);
    }
    clock.failing = true;
    EXPECT_EQ(program.Solve("DeF", 1), -1);
    EXPECT_THAT(host.record.TakeTexts(), ElementsAre(kMessage));
    EXPECT_EQ(program.state().dbWork.GetVar("SN"), 0.0);
    EXPECT_THAT(program.state().dbWork.CompareWithWorkCopy(), IsEmpty());
    EXPECT_TRUE(program.SaveAs((home / "plan.kvr").string())) << "the recent files are told no time";
    clock.failing = false;
    EXPECT_EQ(program.Solve("DeF", 1), 0);
    EXPECT_NEAR(program.state().dbWork.GetVar("SN").value(), 5.41, 0.01);
}

TEST_F(EventFaultTest, AMissingCellStillStopsTheProgram) {
    DeclareForm(FormEvent::Load, [](ScreenEvent& event) { (void)event.context.calc.store.GetVar("NOSUCH"); });
    EXPECT_THROW((void)Run().Raise({Kind::OpenForm, "Faulty"}), ProgramStop);
    EXPECT_THAT(Messages(), IsEmpty());
}

// --- Files -------------------------------------------------------------------------------------------------

/// A program on a file system in which one operation goes wrong.
struct FileFault {
    FileFault(const SmallHome& home, FaultyFileSystem::Plan plan) : files(host.native, plan) {
        host.fileSystem = &files;
        program.emplace(host.host(), home.home());
    }

    TestHost host;
    FaultyFileSystem files;
    std::optional<Program> program;
};

/// Saves, reopens, saves under another name and begins anew, as by the menus.
void UseProjects(Program& program, TestHost& host, const TemporaryFolder& folder) {
    program.SetValue("SN", 1, 1, "4.5");
    host.dialogs.QueueAnswer((folder / "first.kvr").string());
    (void)program.Raise({Kind::Menu, "MenuFileSave"});
    program.SetValue("SN", 1, 1, "5.5");
    (void)program.Raise({Kind::Menu, "MenuFileSave"});
    host.dialogs.QueueAnswer((folder / "second.kvr").string());
    (void)program.Raise({Kind::Menu, "MenuFileSaveAs"});
    host.dialogs.DropAnswers();
    host.dialogs.QueueAnswer((folder / "first.kvr").string());
    (void)program.Raise({Kind::Menu, "MenuFileOpen"});
    host.dialogs.DropAnswers();
    (void)program.Raise({Kind::OpenFile, {}, (folder / "first.kvr").string()});
    (void)program.Raise({Kind::Menu, "mnuRecentFile"});
    (void)program.Raise({Kind::Menu, "NewProj"});
}

TEST(FileFaultTest, AFaultOfAnyFileOperationEndsNoEventAndTheNextOnesWork) {
    const SmallHome home;
    std::filesystem::create_directory(home / "Projects");  // else the first run alone would make it
    int operations = 0;
    {
        const TemporaryFolder folder;
        FileFault whole(home, {});
        ASSERT_EQ(whole.program->Start(""), StartResult::Running);
        operations = whole.files.operations();
        UseProjects(*whole.program, whole.host, folder);
        ASSERT_GT(whole.files.operations() - operations, 20);
        operations = whole.files.operations();
    }
    for (const bool memory : {false, true}) {
        for (int operation = 0; operation < operations; ++operation) {
            SCOPED_TRACE(testing::Message() << "operation " << operation << (memory ? ", no memory" : ""));
            const TemporaryFolder folder;
            FileFault faulty(home, {.operation = operation, .outOfMemory = memory});
            Program& program = *faulty.program;
            bool started = false;
            try {
                started = program.Start("") == StartResult::Running;
            } catch (const std::bad_alloc&) {
                EXPECT_TRUE(memory);  // before anything was entered
            }
            if (!started) continue;
            ASSERT_NO_THROW(UseProjects(program, faulty.host, folder));
            ASSERT_TRUE(program.NewProject()) << testing::PrintToString(faulty.host.record.TakeTexts());
            program.SetValue("SN", 1, 1, "6.5");
            faulty.host.record.TakeTexts();
            EXPECT_TRUE(program.SaveAs((folder / "rescue.kvr").string()));
            EXPECT_EQ(NumberInFile(folder / "rescue.kvr", "SN"), 6.5);
            EXPECT_THAT(faulty.host.record.TakeTexts(), IsEmpty());
            for (const std::string& name : NamesIn(folder.path()))
                EXPECT_THAT(name, testing::EndsWith(".kvr"));
        }
    }
}

}  // namespace
}  // namespace kelvor::test
