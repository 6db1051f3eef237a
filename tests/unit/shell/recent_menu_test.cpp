// The menu of recent projects: what it shows, and what a click on it does.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "shell/main_window.h"
#include "support/project_fixture.h"

namespace kelvor::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class RecentMenuTest : public ProjectTest {
  protected:
    /// Makes a project with a structural number of its own.
    std::string Make(const std::string& name, const std::string& number) {
        program_.host.clock.timestamp = "2004-02-29 10:00:0" + std::to_string(made_++) + ".000";
        Enter("SN", number);
        Run().SaveAs(File(name));
        return File(name);
    }

    bool Choose(int position) { return Run().Raise({UserEvent::Kind::Menu, "mnuRecentFile", {}, position}); }

    /// The captions of the entries that are visible.
    std::vector<std::string> Captions() {
        std::vector<std::string> captions;
        for (const MenuEntry& entry : Run().Menus()) {
            if (entry.name == "mnuRecentFile" && entry.visible) captions.push_back(entry.caption);
        }
        return captions;
    }

    bool IsVisible(const std::string& name) {
        for (const MenuEntry& entry : Run().Menus()) {
            if (entry.name == name) return entry.visible;
        }
        return false;
    }

    int page() { return State().formRegistry.Find("TabForm")->page(); }

    int made_ = 0;
};

TEST_F(RecentMenuTest, WithoutAProjectItHasNoEntryAndOneSeparator) {
    EXPECT_THAT(Captions(), IsEmpty());
    EXPECT_FALSE(IsVisible("BreakLine1"));
    EXPECT_TRUE(IsVisible("BreakLine2"));
    EXPECT_FALSE(Choose(0));
    EXPECT_FALSE(Run().Raise({UserEvent::Kind::Menu, "BreakLine2", {}, 0}));
}

TEST_F(RecentMenuTest, EntriesAreNumberedFromTheNewestWithTheirFullPaths) {
    const std::string first = Make("first.kvr", "1");
    const std::string second = Make("second.kvr", "2");
    EXPECT_THAT(Captions(), ElementsAre("&1 " + second, "&2 " + first));
    EXPECT_TRUE(IsVisible("BreakLine1"));
    Make("fish & chips.kvr", "3");
    EXPECT_EQ(Captions()[0], "&1 " + File("fish && chips.kvr")) << "its ampersand marks no access key";
    EXPECT_FALSE(Choose(3));
    EXPECT_FALSE(Choose(-1));
}

TEST_F(RecentMenuTest, AClickOpensTheProjectAndItComesFirst) {
    const std::string first = Make("first.kvr", "1");
    const std::string second = Make("second.kvr", "2");
    program_.host.clock.timestamp = "2004-02-29 11:00:00.000";
    EXPECT_TRUE(Choose(1));
    EXPECT_EQ(Get("SN"), 1.0);
    EXPECT_EQ(State().sProjectFile, first);
    EXPECT_EQ(page(), 7);
    EXPECT_THAT(Captions(), ElementsAre("&1 " + first, "&2 " + second));
    EXPECT_THAT(Messages(), IsEmpty());
}

TEST_F(RecentMenuTest, AFileThatIsGoneLeavesTheMenuAtOnceAndWhatIsOpenStays) {
    const std::string first = Make("first.kvr", "1");
    const std::string second = Make("second.kvr", "2");
    Run().Raise({UserEvent::Kind::OpenForm, "DeF", {}, 0});
    std::filesystem::remove(first);
    EXPECT_TRUE(Choose(1));
    EXPECT_EQ(program_.host.record.messages.at(0).title, "File is missing");
    EXPECT_THAT(Messages(), ElementsAre("Selected file was not found."));
    EXPECT_THAT(Captions(), ElementsAre("&1 " + second));
    EXPECT_EQ(Get("SN"), 2.0);
    EXPECT_EQ(State().sProjectFile, second);
    EXPECT_EQ(page(), 7);
    EXPECT_EQ(State().formRegistry.CurrentForm->name(), "TabForm");
    EXPECT_NE(State().formRegistry.Find("DeF"), nullptr);

    WriteFile(first, ReadFile(second));
    EXPECT_THAT(Captions(), ElementsAre("&1 " + second)) << "only opening it again brings it back";
    EXPECT_TRUE(Run().OpenProject(first));
    EXPECT_EQ(Captions().size(), 2U);
}

TEST_F(RecentMenuTest, AFreedRowIsTenYearsOlderAndStandsLast) {
    Make("first.kvr", "1");
    const std::string second = Make("second.kvr", "2");
    std::filesystem::remove(second);
    EXPECT_TRUE(Choose(0));
    const std::vector<RecentFile> rows = State().dbCatalogue->RecentFiles();
    EXPECT_EQ(rows[0].fileName, File("first.kvr"));
    EXPECT_EQ(rows[1].fileName, std::nullopt);
    EXPECT_EQ(rows[1].openDate, "1994-02-28 10:00:01.000") << "1994 has no 29th of February";
    for (int i = 0; i < 4; ++i) EXPECT_EQ(rows[static_cast<std::size_t>(i)].sortOrder, i);
}

TEST_F(RecentMenuTest, AFolderOfTheNameCountsAsGone) {
    const std::string path = Make("x.kvr", "1");
    std::filesystem::remove(path);
    std::filesystem::create_directory(path);
    EXPECT_TRUE(Choose(0));
    EXPECT_THAT(Messages(), ElementsAre("Selected file was not found."));
    EXPECT_THAT(Captions(), IsEmpty());
    EXPECT_FALSE(IsVisible("BreakLine1"));
}

TEST_F(RecentMenuTest, AFileThatIsNoProjectIsToldAndStaysInTheMenu) {
    const std::string path = Make("x.kvr", "1");
    WriteFile(path, "no project");
    EXPECT_TRUE(Choose(0));
    EXPECT_THAT(Messages(), ElementsAre("File " + path + " is not a kvor file"));
    EXPECT_THAT(Captions(), ElementsAre("&1 " + path));
    EXPECT_FALSE(program_.store().IsOpen());
}

TEST_F(RecentMenuTest, AValueThatIsRefusedKeepsTheProject) {
    Make("first.kvr", "1");
    Make("second.kvr", "2");
    Run().Raise({UserEvent::Kind::OpenForm, "DeF", {}, 0});
    Run().Raise({UserEvent::Kind::Type, {}, "many", 0});
    EXPECT_TRUE(Choose(1));
    EXPECT_THAT(Messages(), ElementsAre("Please enter valid numeric value."));
    EXPECT_EQ(State().sProjectFile, File("second.kvr"));
}

TEST_F(RecentMenuTest, NamesOfAnyKindOpen) {
    for (const char* name : {"a b.kvr", "Müller \"alt\".kvr", "O'Brien_1.kvr"}) {
        SCOPED_TRACE(name);
        const std::string path = Make(name, std::to_string(made_ + 1));
        const double number = Get("SN");
        ASSERT_TRUE(Run().NewProject());
        EXPECT_TRUE(Choose(0));
        EXPECT_EQ(State().sProjectFile, path);
        EXPECT_EQ(Get("SN"), number);
    }
    const std::string path = Make(std::string(200, 'x') + ".kvr", "9");
    ASSERT_TRUE(Run().NewProject());
    EXPECT_TRUE(Choose(0));
    EXPECT_EQ(State().sProjectFile, path);
    EXPECT_THAT(Messages(), IsEmpty());
}

TEST_F(RecentMenuTest, ATableThatCannotBeReadLeavesAnEmptyMenu) {
    Make("first.kvr", "1");
    RunSql(program_.home / "DataBase/Kelvor.mdb", "DROP TABLE RecentFiles");
    EXPECT_TRUE(Choose(0));
    EXPECT_THAT(Messages(), ElementsAre("Selected file was not found."));
    EXPECT_THAT(Captions(), IsEmpty());
}

TEST_F(RecentMenuTest, ADroppedFileOpensAsANamedOneDoes) {
    const std::string first = Make("first.kvr", "1");
    ASSERT_TRUE(Run().NewProject());
    EXPECT_TRUE(Run().Raise({UserEvent::Kind::OpenFile, {}, first, 0}));
    EXPECT_EQ(Get("SN"), 1.0);
    EXPECT_EQ(page(), 7);
    Enter("SN", "2");
    EXPECT_TRUE(Run().Raise({UserEvent::Kind::OpenFile, {}, folder_.path().string(), 0}));
    EXPECT_EQ(Messages().size(), 1U);
    EXPECT_EQ(NumberInFile(first, "SN"), 1.0) << "opening saves nothing";
}

}  // namespace
}  // namespace kelvor::test
