#include "shell/home_choice.h"

#include <gtest/gtest.h>

#include "support/child_process.h"
#include "support/installed_program.h"
#include "support/test_host.h"

namespace kelvor::test {
namespace {

class HomeChoiceTest : public testing::Test {
  protected:
    static UserFolders FoldersOf(const TemporaryFolder& user) { return {user / "data", user / "Papers"}; }

    HomeChoice ChoiceOf(const TemporaryFolder& user) {
        return {files_, installed_.programs(), FoldersOf(user)};
    }

    /// A script that saves a project, run by a program on a home.
    static StartResult RunAndSave(const Home& home, const Path& project) {
        TestHost host;
        Program program(host.host(), home);
        const StartResult result = program.Start("");
        program.SaveAs(project.string());
        return result;
    }

    NativeFileSystem files_;
    InstalledProgram installed_;
    TemporaryFolder anna_;
    TemporaryFolder ben_;
};

TEST_F(HomeChoiceTest, AHomeBesideTheExecutableIsTaken) {
    const TestHome build;
    HomeChoice choice(files_, build.path(), FoldersOf(anna_));
    EXPECT_FALSE(choice.Installed());
    const Home home = choice.ForWindow();
    EXPECT_EQ(home.folder, build.path());
    EXPECT_EQ(home.ProjectsFolder(), build / "Projects");
    EXPECT_EQ(choice.ForScript(ben_.path()).folder, build.path());
    EXPECT_TRUE(std::filesystem::is_empty(anna_.path()));
}

TEST_F(HomeChoiceTest, TheWindowMakesAHomeOnce) {
    const Home first = ChoiceOf(anna_).ForWindow();
    EXPECT_EQ(first.folder, anna_ / "data/kelvor");
    EXPECT_EQ(first.work, first.folder);
}

TEST_F(HomeChoiceTest, HelpAndSamplesAreThoseThatAreInstalled) {
    const Home home = ChoiceOf(anna_).ForWindow();
    EXPECT_EQ(home.HelpFile(), installed_.shipped() / "Help/Kelvor.hlp");
    EXPECT_EQ(home.SamplesFolder(), installed_.shipped() / "Samples");
}

TEST_F(HomeChoiceTest, ProjectsLieAmongTheDocumentsUnlessTheUserChoosesOtherwise) {
    const Home home = ChoiceOf(anna_).ForWindow();
    EXPECT_EQ(home.ProjectsFolder(), anna_ / "Papers/Kelvor");
    WriteFile(home.IniFile(), ReadFile(home.IniFile()) + "Projects=/data/roads\n");
    EXPECT_EQ(ChoiceOf(anna_).ForWindow().ProjectsFolder(), "/data/roads");
}

TEST_F(HomeChoiceTest, TheFolderOfProjectsIsMadeWithThatOfDocuments) {
    const Home home = ChoiceOf(anna_).ForWindow();
    EXPECT_EQ(RunAndSave(home, anna_ / "street.kvr"), StartResult::Running);
    EXPECT_TRUE(std::filesystem::is_directory(anna_ / "Papers/Kelvor"));
    EXPECT_TRUE(std::filesystem::exists(anna_ / "street.kvr"));
}

TEST_F(HomeChoiceTest, AScriptOfAUserWithoutAHomeMakesNone) {
    const TemporaryFolder scratch;
    const std::string before = Checksum(installed_.shipped());
    const Home home = ChoiceOf(anna_).ForScript(scratch.path());
    EXPECT_EQ(RunAndSave(home, ben_ / "street.kvr"), StartResult::Running);
    EXPECT_TRUE(std::filesystem::exists(ben_ / "street.kvr"));
    EXPECT_TRUE(std::filesystem::is_empty(anna_.path()));
    EXPECT_EQ(Checksum(installed_.shipped()), before);  // also for root, who may write there
}

TEST_F(HomeChoiceTest, AScriptOfAUserWithAHomeRunsInIt) {
    (void)ChoiceOf(anna_).ForWindow();
    const TemporaryFolder scratch;
    const Home home = ChoiceOf(anna_).ForScript(scratch.path());
    EXPECT_EQ(home.folder, anna_ / "data/kelvor");
    EXPECT_TRUE(std::filesystem::is_empty(scratch.path()));
}

TEST_F(HomeChoiceTest, AScriptRenewsAHomeAsTheWindowDoes) {
    (void)ChoiceOf(anna_).ForWindow();
    WriteFile(installed_.shipped() / "Reports/Rep_DeF.vsr", "a better layout");
    installed_.List();
    const TemporaryFolder scratch;
    const Home home = ChoiceOf(anna_).ForScript(scratch.path());
    EXPECT_EQ(ReadFile(home.folder / "Reports/Rep_DeF.vsr"), "a better layout");
}

TEST_F(HomeChoiceTest, TwoUsersDoNotMeet) {
    const Home annas = ChoiceOf(anna_).ForWindow();
    RunAndSave(annas, anna_ / "street.kvr");
    const std::string before = Checksum(anna_.path());
    RunAndSave(ChoiceOf(ben_).ForWindow(), ben_ / "road.kvr");
    EXPECT_EQ(Checksum(anna_.path()), before);
}

TEST_F(HomeChoiceTest, AUserWithoutAFolderIsToldSo) {
    HomeChoice choice(files_, installed_.programs(), {});
    EXPECT_THROW((void)choice.ForWindow(), FileError);
    const TemporaryFolder scratch;
    EXPECT_EQ(RunAndSave(choice.ForScript(scratch.path()), anna_ / "street.kvr"), StartResult::Running);
}

TEST_F(HomeChoiceTest, AProgramThatIsNotInstalledStartsWhereItIsAndSaysWhatIsMissing) {
    HomeChoice choice(files_, ben_.path(), FoldersOf(anna_));
    const Home home = choice.ForWindow();
    EXPECT_EQ(home.folder, ben_.path());
    TestHost host;
    Program program(host.host(), home);
    EXPECT_EQ(program.Start(""), StartResult::Stopped);
    EXPECT_EQ(host.record.TakeTexts().front(),
              "Error reading .INI values\n(unable to locate ini file)\nPlease reinstall Kelvor");
}

}  // namespace
}  // namespace kelvor::test
