#include "shell/start_up.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstddef>
#include <functional>

#include "support/child_process.h"
#include "support/project_fixture.h"

namespace kelvor::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::MatchesRegex;
using testing::SizeIs;

const char* const kReinstallTemplate = "One file is missing (kvrwork.tpl).\n\nPlease reinstall program.";
const char* const kNoIni = "Error reading .INI values\n(unable to locate ini file)\nPlease reinstall Kelvor";
const char* const kNoApplication = "Error reading .INI values\n(unable to locate application file)";

/// What a start said and left behind.
struct Start {
    StartResult result = StartResult::Running;
    std::vector<Message> messages;
    bool waiting = false;
    bool projectOpen = false;
    std::size_t formsOpen = 0;
    std::size_t listsOffered = 0;
    std::string projectFile;
    std::string caption;
    bool reportsUnavailable = false;
    std::string homeInTheEnd;  // its checksum after the program has ended
};

class StartUpTest : public testing::Test {
  protected:
    Start Run(const std::string& commandLine = "") { return RunOn(home_.home(), commandLine); }

    Start RunOn(const Home& where, const std::string& commandLine) {
        Start start;
        {
            TestHost host;
            host.components.missing = missing_;
            Program program(host.host(), where);
            start.result = program.Start(commandLine);
            start.messages = host.record.messages;
            start.waiting = host.dialogs.waiting();
            start.projectOpen = program.state().dbWork.IsOpen();
            start.formsOpen = program.state().formRegistry.InOpeningOrder().size();
            const auto& lists = program.state().dbCustom;
            if (lists != nullptr) start.listsOffered = lists->Descriptions().size();
            start.projectFile = program.state().sProjectFile;
            start.caption = program.state().caption;
            start.reportsUnavailable = program.state().bReportsUnavailable;
            registrations_ = host.components.registrations;
        }
        start.homeInTheEnd = Checksum(home_.path());
        return start;
    }

    /// Checks that a start ends with one message and leaves the home as it was.
    void ExpectStop(const testing::Matcher<std::string>& text, const std::string& title,
                    MessageIcon icon = MessageIcon::None) {
        const std::string before = Checksum(home_.path());
        const Start start = Run();
        EXPECT_EQ(start.result, StartResult::Stopped);
        ASSERT_THAT(start.messages, SizeIs(1));
        EXPECT_THAT(start.messages[0].text, text);
        EXPECT_EQ(start.messages[0].title, title);
        EXPECT_EQ(start.messages[0].icon, icon);
        EXPECT_EQ(start.messages[0].style, MessageStyle::Ok);
        EXPECT_FALSE(start.projectOpen);
        EXPECT_FALSE(start.waiting) << "the pointer goes back to its default";
        EXPECT_EQ(start.homeInTheEnd, before);
    }

    void WriteIniFile(const std::string& content) { WriteFile(home_ / "kvor.ini", content); }

    TestHome home_;
    TemporaryFolder folder_;
    std::set<Component> missing_;
    int registrations_ = 0;
};

// --- A start that succeeds -----------------------------------------------------------------------

TEST_F(StartUpTest, WithoutACommandLineAFreshProjectIsOpen) {
    const Start start = Run();
    EXPECT_EQ(start.result, StartResult::Running);
    EXPECT_THAT(start.messages, IsEmpty());
    EXPECT_TRUE(start.projectOpen);
    EXPECT_EQ(start.formsOpen, 1U) << "the screen from which the others are opened";
    EXPECT_EQ(start.projectFile, "");
    EXPECT_FALSE(start.waiting);
    EXPECT_FALSE(start.reportsUnavailable);
    EXPECT_EQ(ReadFile(home_ / "kvrwork.tmp"), ReadFile(home_ / "kvrwork.tpl"));
    EXPECT_THAT(NamesIn(home_.path()),
                ElementsAre("DataBase", "Languages", "Reports", "kvor.ini", "kvrwork.tmp", "kvrwork.tpl"));
}

TEST_F(StartUpTest, BlanksAreNoCommandLine) {
    const Start start = Run("   ");
    EXPECT_EQ(start.result, StartResult::Running);
    EXPECT_THAT(start.messages, IsEmpty());
    EXPECT_TRUE(start.projectOpen);
}

TEST_F(StartUpTest, NamesInTheIniFileCompareWithoutRegardToCaseAndCommentsAreSkipped) {
    WriteIniFile(
        "; Kelvor\r\n[Other]\r\nApplication=wrong.mdb\r\n[KVOR]\r\n"
        ";Application=wrong.mdb\r\n application = \"Kelvor.mdb\" \r\nCUSTOM=custom.tpl\r\n");
    EXPECT_EQ(Run().result, StartResult::Running);
}

TEST_F(StartUpTest, DatabasesMayHaveOtherNames) {
    std::filesystem::rename(home_ / "DataBase/Kelvor.mdb", home_ / "DataBase/My catalogue.mdb");
    std::filesystem::rename(home_ / "DataBase/custom.tpl", home_ / "DataBase/O'Brien's lists.tpl");
    WriteIniFile("[kvor]\nApplication=My catalogue.mdb\nCustom=O'Brien's lists.tpl\n");
    EXPECT_EQ(Run().result, StartResult::Running);
}

TEST_F(StartUpTest, TheProjectOnTheCommandLineOpens) {
    const std::string path = folder_ / "my plan.kvr";
    std::filesystem::copy_file(home_ / "kvrwork.tpl", path);
    const std::vector<std::string> commandLines = {path, "  " + path + "  ", "\"" + path + "\"",
                                                   "  \"" + path + "\" ",
                                                   // Quotes are dropped wherever they stand.
                                                   folder_.path().string() + R"(/"my" pl"an.kvr)"};
    for (const std::string& commandLine : commandLines) {
        SCOPED_TRACE(commandLine);
        const Start start = Run(commandLine);
        EXPECT_EQ(start.result, StartResult::Running);
        EXPECT_THAT(start.messages, IsEmpty());
        EXPECT_TRUE(start.projectOpen);
        EXPECT_EQ(start.projectFile, path);
        EXPECT_EQ(start.caption, "KVR - " + path);
        EXPECT_FALSE(start.waiting);
    }
    TestHost host;
    Program program(host.host(), home_.home());
    ASSERT_EQ(program.Start(""), StartResult::Running);
    EXPECT_THAT(RecentPaths(program.state()), ElementsAre(path));
}

TEST_F(StartUpTest, ARefusedProjectOnTheCommandLineLeavesTheProgramWithoutAProject) {
    const std::string path = folder_ / "text.kvr";
    WriteFile(path, "no project");
    const Start start = Run(path);
    EXPECT_EQ(start.result, StartResult::Running);
    ASSERT_THAT(start.messages, SizeIs(1));
    EXPECT_EQ(start.messages[0].text, "File " + path + " is not a kvor file");
    EXPECT_EQ(start.messages[0].title, "Kelvor");
    EXPECT_FALSE(start.projectOpen);
    EXPECT_EQ(start.projectFile, "");
    EXPECT_EQ(start.caption, "");
    EXPECT_FALSE(start.waiting);
}

TEST_F(StartUpTest, AnAbsentFileOnTheCommandLineLeavesNoProjectNoFormAndTheWaitCursor) {
    const std::string path = folder_ / "no such.kvr";
    const std::string folder = folder_ / "folder.kvr";
    std::filesystem::create_directory(folder);
    const std::vector<std::pair<std::string, std::string>> commandLines = {
        {path, path}, {" \"" + path + "\" ", path}, {folder, folder}, {"\"\"", ""}};
    for (const auto& [commandLine, named] : commandLines) {
        SCOPED_TRACE(commandLine);
        const std::string before = Checksum(home_.path());
        const Start start = Run(commandLine);
        EXPECT_EQ(start.result, StartResult::FileMissing);
        ASSERT_THAT(start.messages, SizeIs(1));
        EXPECT_EQ(start.messages[0].text, named + " file does not exist!");
        EXPECT_EQ(start.messages[0].title, "Opening file");
        EXPECT_EQ(start.messages[0].icon, MessageIcon::None);
        EXPECT_FALSE(start.projectOpen);
        EXPECT_EQ(start.formsOpen, 0U);
        EXPECT_EQ(start.projectFile, "");
        EXPECT_EQ(start.caption, "");
        EXPECT_TRUE(start.waiting);
        EXPECT_EQ(start.homeInTheEnd, before);
    }
}

// --- Configuration -------------------------------------------------------------------------------

TEST_F(StartUpTest, WithoutItsIniFileTheProgramStops) {
    std::filesystem::remove(home_ / "kvor.ini");
    ExpectStop(kNoIni, "Init Error");
    std::filesystem::create_directory(home_ / "kvor.ini");
    ExpectStop(kNoIni, "Init Error");
}

TEST_F(StartUpTest, AnIniFileWithoutBothNamesStopsTheProgram) {
    const std::vector<std::string> contents = {
        "",
        "\n\n",
        "[kvor]",
        "[kvor]\nApplication=\nCustom=\n",
        "[kvor]\nCustom=custom.tpl\n",
        "[kvor]\nApplication=Kelvor.mdb\n",
        "[kvor]\nApplication=Kelvor.mdb\nCustom=   \n",
        "[kvor]\nApplication=\"\"\nCustom=custom.tpl\n",
        "[kvor]\nApplication Kelvor.mdb\nCustom custom.tpl\n",
        "Application=Kelvor.mdb\nCustom=custom.tpl\n",
        "[other]\nApplication=Kelvor.mdb\nCustom=custom.tpl\n",
        "[kvor]\n;Application=Kelvor.mdb\nCustom=custom.tpl\n",
        std::string("\0\x01\xFF[kvor\0]\n=\n", 13),
        std::string(3000, '\xA5'),
        ReadFile(home_ / "DataBase/Kelvor.mdb"),
        std::string(2000000, '['),
    };
    for (const std::string& content : contents) {
        SCOPED_TRACE(content.substr(0, 60));
        WriteIniFile(content);
        ExpectStop(kNoApplication, "Init Error", MessageIcon::Critical);
    }
}

TEST_F(StartUpTest, AMissingNameIsToldBeforeAMissingFile) {
    WriteIniFile("[kvor]\nApplication=nowhere.mdb\n");
    ExpectStop(kNoApplication, "Init Error", MessageIcon::Critical);
}

TEST_F(StartUpTest, AnUnreadableIniFileStopsTheProgram) {
    OpenToEverybody(home_.path(), true);
    std::filesystem::permissions(home_ / "kvor.ini", std::filesystem::perms::none);
    const ChildEnd end = RunInChild(
        [&]() -> std::string {
            TestHost host;
            Program program(host.host(), home_.home());
            if (program.Start("") != StartResult::Stopped) return "not stopped";
            return host.record.messages.size() == 1 ? host.record.messages[0].text : "not one message";
        },
        Rights::Unprivileged);
    EXPECT_EQ(end.report, kNoApplication);
}

// --- The two databases ---------------------------------------------------------------------------

struct DatabaseFile {
    const char* name;
    const char* file;
};

class StartUpDatabaseTest : public StartUpTest, public testing::WithParamInterface<DatabaseFile> {
  protected:
    [[nodiscard]] Path Database() const { return home_ / GetParam().file; }

    /// Without its catalogue the program stops; without its lists it goes on and offers none.
    void ExpectReported(const testing::Matcher<std::string>& text) {
        if (std::string(GetParam().name) == "Kelvor.mdb") {
            ExpectStop(text, "Error");
            return;
        }
        const std::string before = ReadFile(Database());
        const Start start = Run();
        EXPECT_EQ(start.result, StartResult::Running);
        ASSERT_THAT(start.messages, SizeIs(1));
        EXPECT_THAT(start.messages[0].text, text);
        EXPECT_EQ(start.messages[0].title, "Error");
        EXPECT_TRUE(start.projectOpen);
        EXPECT_FALSE(start.waiting);
        EXPECT_EQ(start.listsOffered, 0U);
        EXPECT_EQ(ReadFile(Database()), before) << "it is left for whoever can mend it";
    }
};

TEST_P(StartUpDatabaseTest, AMissingOneStopsTheProgram) {
    const std::string missing =
        std::string("One file is missing (") + GetParam().name + ").\n\nPlease reinstall program.";
    std::filesystem::remove(Database());
    ExpectStop(missing, "Kelvor");
    std::filesystem::create_directory(Database());
    ExpectStop(missing, "Kelvor");
}

TEST_P(StartUpDatabaseTest, OneThatIsNoDatabaseIsReported) {
    for (const std::string& content : {std::string(), std::string("a text\n"), std::string(5000, '\xA5')}) {
        SCOPED_TRACE(content.size());
        WriteFile(Database(), content);
        ExpectReported(MatchesRegex("Error in MainFunction Error Number : 3049\n.+"));
    }
}

TEST_P(StartUpDatabaseTest, ATruncatedOneIsReported) {
    const std::string whole = ReadFile(Database());
    for (const std::size_t length : {std::size_t{1}, std::size_t{20}, std::size_t{100}, std::size_t{1000},
                                     whole.size() / 2, whole.size() - 4096, whole.size() - 1}) {
        SCOPED_TRACE(length);
        WriteFile(Database(), whole.substr(0, length));
        ExpectReported(MatchesRegex("Error in MainFunction Error Number : (3049|3343)\n.+"));
    }
}

TEST_P(StartUpDatabaseTest, AForeignOneIsReported) {
    std::filesystem::remove(Database());
    RunSql(Database(), "CREATE TABLE Roads (Name TEXT)");
    ExpectReported(MatchesRegex("Error in MainFunction Error Number : 3343\ntable (Field|Value) is missing"));
}

TEST_P(StartUpDatabaseTest, OneWithATriggerOrAViewIsReported) {
    RunSql(Database(), "CREATE VIEW V AS SELECT 1");
    ExpectReported("Error in MainFunction Error Number : 3343\nview V does not belong there");
}

INSTANTIATE_TEST_SUITE_P(Databases, StartUpDatabaseTest,
                         testing::Values(DatabaseFile{"Kelvor.mdb", "DataBase/Kelvor.mdb"},
                                         DatabaseFile{"custom.tpl", "DataBase/custom.tpl"}),
                         [](const auto& database) { return std::string(database.param.name).substr(0, 6); });

TEST_F(StartUpTest, DatabasesAreLookedForInTheirFolderAlone) {
    std::filesystem::copy_file(home_ / "DataBase/Kelvor.mdb", folder_ / "Kelvor.mdb");
    const std::string elsewhere = folder_ / "Kelvor.mdb";
    WriteIniFile("[kvor]\nApplication=" + elsewhere + "\nCustom=custom.tpl\n");
    ExpectStop("One file is missing (" + elsewhere + ").\n\nPlease reinstall program.", "Kelvor");
}

TEST_F(StartUpTest, ACatalogueThatAsksForAnyNumberOfCellsIsNoProgramsEnd) {
    RunSql(home_ / "DataBase/Kelvor.mdb", "UPDATE Variable SET Dim1 = 32767, Dim2 = 32767");
    const Start start = Run();
    EXPECT_EQ(start.result, StartResult::Stopped);
    ASSERT_THAT(start.messages, SizeIs(1));
    EXPECT_THAT(
        start.messages[0].text,
        MatchesRegex("Error loading from " + (home_ / "kvrwork.tpl").string() + ": cell .+ is missing"));
}

TEST_F(StartUpTest, AnImpossibleNumberInTheCatalogueStopsTheProgram) {
    for (const char* damage : {"UPDATE Variable SET Dim1 = -1", "UPDATE Variable SET Dim2 = 99999999999",
                               "UPDATE \"Convert\" SET Factor = 0", "UPDATE Field SET Seq = 70000"}) {
        SCOPED_TRACE(damage);
        TestHome fresh;
        std::filesystem::copy_file(fresh / "DataBase/Kelvor.mdb", home_ / "DataBase/Kelvor.mdb",
                                   std::filesystem::copy_options::overwrite_existing);
        RunSql(home_ / "DataBase/Kelvor.mdb", damage);
        ExpectStop(MatchesRegex("Error in MainFunction Error Number : 3343\n.+"), "Error");
    }
}

// --- Components ----------------------------------------------------------------------------------

TEST_F(StartUpTest, WithoutTheReportEngineTheProgramStartsAndNotesIt) {
    missing_ = {Component::ReportEngine};
    const Start start = Run();
    EXPECT_EQ(start.result, StartResult::Running);
    EXPECT_THAT(start.messages, IsEmpty());
    EXPECT_TRUE(start.reportsUnavailable);
    EXPECT_TRUE(start.projectOpen);
    EXPECT_EQ(registrations_, 0);
}

TEST_F(StartUpTest, AnyOtherMissingComponentStopsTheProgramAfterOneRegistration) {
    for (const Component component : {Component::TabStrip, Component::Grid, Component::FileDialogs}) {
        SCOPED_TRACE(static_cast<int>(component));
        missing_ = {component};
        ExpectStop(
            "A necessary system component could not be found.\n"
            "  Please contact Product Support for assistance.\n"
            "        Press 'OK' to shut down the application.",
            "Problem");
        EXPECT_EQ(registrations_, 1);
    }
    missing_ = {Component::TabStrip, Component::Grid, Component::FileDialogs, Component::ReportEngine};
    EXPECT_EQ(Run().result, StartResult::Stopped);
    EXPECT_EQ(registrations_, 1);
}

/// Components that work once they are registered, and keep what was asked of them.
class Registrable : public ComponentProbe {
  public:
    bool Prove(Component component) override {
        proved.push_back(component);
        return !missing.contains(component);
    }
    void RegisterComponents() override {
        ++registrations;
        missing.clear();
    }

    std::set<Component> missing;
    std::vector<Component> proved;
    int registrations = 0;
};

TEST_F(StartUpTest, AComponentThatWorksOnceRegisteredIsProvedAgain) {
    TestHost host;
    Registrable components;
    components.missing = {Component::Grid, Component::FileDialogs};
    Program program({host.native, host.clock, host.dialogs, components}, home_.home());
    EXPECT_EQ(program.Start(""), StartResult::Running);
    EXPECT_THAT(host.record.messages, IsEmpty());
    EXPECT_EQ(components.registrations, 1);
    EXPECT_THAT(components.proved, ElementsAre(Component::TabStrip, Component::Grid, Component::Grid,
                                               Component::FileDialogs, Component::ReportEngine));
}

TEST_F(StartUpTest, ComponentsAreProvedBeforeTheConfigurationIsRead) {
    WriteIniFile("");
    missing_ = {Component::Grid};
    const Start start = Run();
    ASSERT_THAT(start.messages, SizeIs(1));
    EXPECT_EQ(start.messages[0].title, "Problem");
}

// --- The template and the work copy --------------------------------------------------------------

TEST_F(StartUpTest, WithoutItsTemplateTheProgramStopsAndTakesNoStaleWorkCopy) {
    std::filesystem::rename(home_ / "kvrwork.tpl", home_ / "kvrwork.tmp");
    ExpectStop(kReinstallTemplate, "Kelvor");
}

TEST_F(StartUpTest, ABrokenTemplateStopsTheProgramAndNoStaleWorkCopyIsTaken) {
    const std::string whole = ReadFile(home_ / "kvrwork.tpl");
    const std::string broken = "Error loading from " + (home_ / "kvrwork.tpl").string() + ": ";
    for (const std::string& content :
         {std::string(), std::string("a text\n"), whole.substr(0, 5000), whole.substr(0, whole.size() / 2)}) {
        SCOPED_TRACE(content.size());
        WriteFile(home_ / "kvrwork.tpl", content);
        WriteFile(home_ / "kvrwork.tmp", whole);
        const Start start = Run();
        EXPECT_EQ(start.result, StartResult::Stopped);
        EXPECT_FALSE(start.projectOpen);
        EXPECT_FALSE(start.waiting);
        ASSERT_THAT(start.messages, SizeIs(1));
        EXPECT_THAT(start.messages[0].text, testing::StartsWith(broken));
        EXPECT_EQ(start.messages[0].title, "Kelvor");
        EXPECT_NE(ReadFile(home_ / "kvrwork.tmp"), whole);
    }
    std::filesystem::remove(home_ / "kvrwork.tpl");
    std::filesystem::remove(home_ / "kvrwork.tmp");
    std::filesystem::create_directory(home_ / "kvrwork.tpl");
    ExpectStop(broken + "Is a directory", "Kelvor");
}

TEST_F(StartUpTest, ATemplateThatLacksACellStopsTheProgram) {
    RunSql(home_ / "kvrwork.tpl", "DELETE FROM Project WHERE Name = 'SN'");
    const Start start = Run();
    EXPECT_EQ(start.result, StartResult::Stopped);
    ASSERT_THAT(start.messages, SizeIs(1));
    EXPECT_EQ(start.messages[0].text,
              "Error loading from " + (home_ / "kvrwork.tpl").string() + ": cell SN(1,1) is missing");
}

TEST_F(StartUpTest, AWorkFolderThatCannotBeWrittenStopsTheProgram) {
    const TemporaryFolder work;
    OpenToEverybody(home_.path(), true);
    const WriteProtection readOnly(work.path());
    for (const Path& folder : {work.path(), work / "nowhere", home_ / "kvor.ini"}) {
        SCOPED_TRACE(folder);
        const std::string before = Checksum(home_.path());
        const ChildEnd end = RunInChild(
            [&]() -> std::string {
                const Start start = RunOn({home_.path(), folder}, "");
                if (start.result != StartResult::Stopped) return "not stopped";
                if (start.projectOpen || start.waiting) return "a project, or the wait cursor";
                return start.messages.size() == 1 ? start.messages[0].text : "not one message";
            },
            Rights::Unprivileged);
        const char* reason = folder == work.path()        ? "Permission denied"
                             : folder == work / "nowhere" ? "No such file or directory"
                                                          : "Not a directory";
        EXPECT_EQ(end.report, "Error loading from " + (folder / "kvrwork.tmp").string() + ": " + reason);
        EXPECT_EQ(Checksum(home_.path()), before);
    }
}

TEST_F(StartUpTest, AWorkCopyThatCannotBeReplacedStopsTheProgram) {
    std::filesystem::create_directories(home_ / "kvrwork.tmp/something");
    ExpectStop("Error loading from " + (home_ / "kvrwork.tmp").string() + ": Directory not empty", "Kelvor");
}

TEST_F(StartUpTest, AHomeThatCannotBeWrittenIsEnoughWithAWorkFolderElsewhere) {
    const TemporaryFolder work;
    OpenToEverybody(work.path(), true);
    const WriteProtection readOnly(home_.path());
    const std::string before = Checksum(home_.path());
    const ChildEnd end = RunInChild(
        [&]() -> std::string {
            const Start start = RunOn({home_.path(), work.path()}, "");
            return start.result == StartResult::Running && start.messages.empty() ? "runs" : "does not";
        },
        Rights::Unprivileged);
    EXPECT_EQ(end.report, "runs");
    EXPECT_EQ(Checksum(home_.path()), before);
}

// --- A second program ----------------------------------------------------------------------------

TEST_F(StartUpTest, ASecondProgramOnTheSameHomeSaysSoAndTheFirstIsUnharmed) {
    TestHost host;
    Program first(host.host(), home_.home());
    ASSERT_EQ(first.Start(""), StartResult::Running);
    first.SetValue("SN", 1, 1, "4.5");
    const std::string before = Checksum(home_.path());

    const Start second = Run();
    EXPECT_EQ(second.result, StartResult::Stopped);
    ASSERT_THAT(second.messages, SizeIs(1));
    EXPECT_EQ(second.messages[0].text, "Kelvor is already running on " + home_.path().string() +
                                           ".\n\nPlease use the program that is open.");
    EXPECT_EQ(second.messages[0].title, "Kelvor");
    EXPECT_FALSE(second.projectOpen);
    EXPECT_FALSE(second.waiting);
    EXPECT_EQ(second.homeInTheEnd, before);

    EXPECT_EQ(first.state().dbWork.GetVar("SN"), 4.5);
    EXPECT_THAT(first.state().dbWork.CompareWithWorkCopy(), IsEmpty());
    const std::string saved = folder_ / "plan.kvr";
    EXPECT_TRUE(first.SaveAs(saved));
    EXPECT_EQ(NumberInFile(saved, "SN"), 4.5);
    EXPECT_EQ(Run().result, StartResult::Stopped) << "the second must not have taken the lock with it";
}

TEST_F(StartUpTest, AProgramThatWasKilledLocksNobodyOut) {
    const ChildEnd end = RunInChild([&]() -> std::string {
        TestHost host;
        Program program(host.host(), home_.home());
        if (program.Start("") != StartResult::Running) return "not started";
        program.SetValue("SN", 1, 1, "4.5");
        ::raise(SIGKILL);
        return "survived";
    });
    ASSERT_EQ(end.signal, SIGKILL) << end.report;
    ASSERT_TRUE(std::filesystem::exists(home_ / "kvrwork.lck"));
    ASSERT_TRUE(std::filesystem::exists(home_ / "kvrwork.tmp"));
    const Start start = Run();
    EXPECT_EQ(start.result, StartResult::Running);
    EXPECT_EQ(start.messages.size(), 1U) << "that it was killed is said, and its work offered";
    EXPECT_EQ(NumberInFile(home_ / "kvrwork.tmp", "SN"), 4.5);
    EXPECT_THAT(NamesIn(home_.path()), ElementsAre("DataBase", "Kept", "Languages", "Reports", "kvor.ini",
                                                   "kvrwork.tmp", "kvrwork.tpl"));
}

TEST_F(StartUpTest, ProgramsWithTheirOwnWorkFoldersRunSideBySide) {
    TemporaryFolder work;
    TestHost host;
    Program first(host.host(), home_.home());
    ASSERT_EQ(first.Start(""), StartResult::Running);
    EXPECT_EQ(RunOn({home_.path(), work.path()}, "").result, StartResult::Running);
}

}  // namespace
}  // namespace kelvor::test
