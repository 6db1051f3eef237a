#include "home/home_renewal.h"

#include <SQLiteCpp/SQLiteCpp.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <functional>
#include <thread>

#include "catalogue/list_database.h"
#include "platform/file_lock.h"
#include "support/child_process.h"
#include "support/installed_program.h"

namespace kelvor::test {
namespace {

using testing::Contains;
using testing::HasSubstr;
using testing::Not;

void RunSql(const Path& file, const char* statements) {
    SQLite::Database(file.string(), SQLite::OPEN_READWRITE).exec(statements);
}

std::string AskSql(const Path& file, const char* question) {
    SQLite::Database database(file.string(), SQLite::OPEN_READONLY);
    return database.execAndGet(question).getString();
}

class HomeRenewalTest : public testing::Test {
  protected:
    [[nodiscard]] Path home() const { return user_ / "data/kelvor"; }
    [[nodiscard]] Path Own(const std::string& name) const { return home() / name; }
    [[nodiscard]] Path Shipped(const std::string& name) const { return installed_.shipped() / name; }

    HomeState Start() {
        NativeFileSystem files;
        return MakeOrRenewHome(files, installed_.shipped(), home());
    }

    /// Another version is installed, in which a part is another one.
    void Ship(const std::string& name, const std::string& content) {
        WriteFile(Shipped(name), content);
        installed_.List();
    }
    void ShipSql(const std::string& name, const char* statements) {
        RunSql(Shipped(name), statements);
        installed_.List();
    }

    InstalledProgram installed_;
    TemporaryFolder user_;
};

// --- Making ---------------------------------------------------------------------------------------------

TEST_F(HomeRenewalTest, TheFirstStartMakesTheHomeOfWhatIsInstalled) {
    EXPECT_EQ(Start(), HomeState::Made);
    EXPECT_EQ(Checksum(home()), Checksum(installed_.shipped()));
}

/// A start in a process of its own, which begins once the pipe is closed. It ends with 0 if it finds the home
/// whole.
pid_t StartAtTheGate(const std::array<int, 2>& gate, const std::function<bool()>& start) {
    const pid_t process = ::fork();
    if (process != 0) return process;
    ::close(gate[1]);
    char nothing = 0;
    (void)!::read(gate[0], &nothing, 1);
    bool whole = false;
    try {
        whole = start();
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "%s\n", failure.what());
    }
    ::_exit(whole ? 0 : 1);
}

/// Copies slowly, so that the second of two starts comes in the middle of the first.
class SlowFiles : public NativeFileSystem {
  public:
    void Rename(const Path& from, const Path& to) override {
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
        NativeFileSystem::Rename(from, to);
    }
};

TEST_F(HomeRenewalTest, TwoFirstStartsAtTheSameMomentBothFindAWholeHome) {
    const ShippedParts parts(ReadFile(Shipped(ShippedParts::kListName)));
    ASSERT_FALSE(parts.parts().empty());
    const auto start = [&] {
        SlowFiles files;
        (void)MakeOrRenewHome(files, installed_.shipped(), home());
        return std::all_of(parts.parts().begin(), parts.parts().end(), [&](const ShippedPart& part) {
            return ReadFile(Own(part.name)) == ReadFile(Shipped(part.name));
        });
    };
    constexpr int kRounds = 5;
    for (int round = 0; round < kRounds; ++round) {
        std::filesystem::remove_all(home());
        std::array<int, 2> gate{};
        ASSERT_EQ(::pipe(gate.data()), 0);
        const std::array starts = {StartAtTheGate(gate, start), StartAtTheGate(gate, start)};
        ::close(gate[0]);
        ::close(gate[1]);
        for (const pid_t process : starts) {
            int status = -1;
            ::waitpid(process, &status, 0);
            EXPECT_EQ(status, 0) << "a start saw a home that was half made";
        }
        EXPECT_EQ(Checksum(home()), Checksum(installed_.shipped())) << "nothing else is left there";
    }
}

TEST_F(HomeRenewalTest, NobodyElseLooksIntoAHome) {
    Start();
    using std::filesystem::perms;
    EXPECT_EQ(std::filesystem::status(home()).permissions() & (perms::group_all | perms::others_all),
              perms::none);
}

TEST_F(HomeRenewalTest, TheNextStartLeavesItAsItIs) {
    Start();
    const std::string before = Checksum(home());
    EXPECT_EQ(Start(), HomeState::AsItWas);
    EXPECT_EQ(Checksum(home()), before);
}

TEST_F(HomeRenewalTest, WhatWasMadeOfWriteProtectedFilesCanBeWritten) {
    const WriteProtection protection(installed_.shipped());
    OpenToEverybody(installed_.shipped().parent_path().parent_path(), false);
    OpenToEverybody(user_.path(), true);
    const ChildEnd end = RunInChild(
        [&] {
            Start();
            WriteFile(Own("kvor.ini"), "[kvor]\nApplication=Other.mdb\n");
            RunSql(Own("DataBase/Kelvor.mdb"), "DELETE FROM RecentFiles");
            return ReadFile(Own("kvor.ini"));
        },
        Rights::Unprivileged);
    EXPECT_EQ(end.report, "[kvor]\nApplication=Other.mdb\n");
}

TEST_F(HomeRenewalTest, AHomeThatCannotBeMadeIsToldWithItsPath) {
    WriteFile(user_ / "data", "a file where the folder should be");
    try {
        Start();
        FAIL() << "a home was made";
    } catch (const FileError& failure) {
        EXPECT_THAT(failure.what(), HasSubstr(home().string()));
    }
}

TEST_F(HomeRenewalTest, AHomeThatIsHalfMadeIsMadeWhole) {
    Start();
    for (const char* name : {"kvor.ini", "shipped.lst", "kvrwork.tpl"}) std::filesystem::remove(Own(name));
    EXPECT_EQ(Start(), HomeState::Made);
    EXPECT_EQ(Checksum(home()), Checksum(installed_.shipped()));
}

// --- Renewing -------------------------------------------------------------------------------------------

TEST_F(HomeRenewalTest, AnUpgradeRenewsTheCatalogueAndKeepsTheRecentFiles) {
    Start();
    RunSql(Own("DataBase/Kelvor.mdb"),
           "UPDATE RecentFiles SET FileName = '/home/anna/street.kvr', OpenDate = '2001-02-03 04:05:06.789' "
           "WHERE "
           "SortOrder = 0");
    ShipSql("DataBase/Kelvor.mdb", "UPDATE Variable SET \"Desc\" = 'Design traffic' WHERE Name = 'FLEXE18'");
    EXPECT_EQ(Start(), HomeState::Renewed);
    const Path catalogue = Own("DataBase/Kelvor.mdb");
    EXPECT_EQ(AskSql(catalogue, "SELECT \"Desc\" FROM Variable WHERE Name = 'FLEXE18'"), "Design traffic");
    EXPECT_EQ(AskSql(catalogue, "SELECT FileName || ' ' || OpenDate FROM RecentFiles WHERE SortOrder = 0"),
              "/home/anna/street.kvr 2001-02-03 04:05:06.789");
    EXPECT_EQ(AskSql(catalogue, "SELECT count(*) FROM RecentFiles"), "4");
}

TEST_F(HomeRenewalTest, AnUpgradeKeepsTheListsThatTheUserEditedAndBringsNewOnes) {
    Start();
    RunSql(Own("DataBase/custom.tpl"),
           "UPDATE \"Value\" SET \"Value\" = 'Recycled base' WHERE Name = 'LDLayerMat' AND Sort = 1;"
           "DELETE FROM \"Value\" WHERE Name = 'AxleType'");
    ShipSql(
        "DataBase/custom.tpl",
        "INSERT INTO \"Value\" (Name, Sort, \"Value\", Description) VALUES ('Climate', 1, 'Wet', 'Climates');"
        "INSERT INTO ValueDefault (Name, Sort, \"Value\", Description) VALUES ('Climate', 1, 'Wet', "
        "'Climates');"
        "UPDATE \"Value\" SET \"Value\" = 'Stone mastic' WHERE Name = 'LDLayerMat' AND Sort = 1;"
        "UPDATE ValueDefault SET \"Value\" = 'Stone mastic' WHERE Name = 'LDLayerMat' AND Sort = 1");
    EXPECT_EQ(Start(), HomeState::Renewed);
    ListDatabase lists(Own("DataBase/custom.tpl"));
    EXPECT_EQ(lists.Values("LDLayerMat", false).front(), "Recycled base");
    EXPECT_TRUE(lists.Values("AxleType", false).empty());  // he took them all off
    EXPECT_THAT(lists.Values("Climate", false), Contains("Wet"));
    lists.Restore("Layer Materials");
    EXPECT_EQ(lists.Values("LDLayerMat", false).front(), "Stone mastic");
}

TEST_F(HomeRenewalTest, AnUpgradeKeepsTheSettingsAndEveryOtherFile) {
    Start();
    WriteFile(Own("kvor.ini"), "[kvor]\nApplication=Kelvor.mdb\nCustom=custom.tpl\nProjects=/data/roads\n");
    std::filesystem::create_directory(Own("Projects"));
    WriteFile(Own("Projects/street.kvr"), "a project");
    WriteFile(Own("Reports/Rep_Own.vsr"), "a layout of the office");
    Ship("kvor.ini", "[kvor]\nApplication=Kelvor.mdb\nCustom=custom.tpl\nNew=1\n");
    EXPECT_EQ(Start(), HomeState::Renewed);
    EXPECT_THAT(ReadFile(Own("kvor.ini")), HasSubstr("Projects=/data/roads"));
    EXPECT_EQ(ReadFile(Own("Projects/street.kvr")), "a project");
    EXPECT_EQ(ReadFile(Own("Reports/Rep_Own.vsr")), "a layout of the office");
}

TEST_F(HomeRenewalTest, AnUpgradeRenewsLayoutsAndTemplate) {
    Start();
    Ship("Reports/Rep_DeF.vsr", "a better layout");
    Ship("kvrwork.tpl", "a template with more cells");
    EXPECT_EQ(Start(), HomeState::Renewed);
    EXPECT_EQ(ReadFile(Own("Reports/Rep_DeF.vsr")), "a better layout");
    EXPECT_EQ(ReadFile(Own("kvrwork.tpl")), "a template with more cells");
    EXPECT_FALSE(std::filesystem::exists(Own("Reports/Rep_DeF.vsr~")));
}

TEST_F(HomeRenewalTest, ALayoutThatTheUserChangedIsKeptBesideTheNewOne) {
    Start();
    for (const char* round : {"1", "2"}) {
        WriteFile(Own("Reports/Rep_DeF.vsr"), std::string("with our logo ") + round);
        Ship("Reports/Rep_DeF.vsr", std::string("a better layout ") + round);
        EXPECT_EQ(Start(), HomeState::Renewed);
    }
    EXPECT_EQ(ReadFile(Own("Reports/Rep_DeF.vsr")), "a better layout 2");
    EXPECT_EQ(ReadFile(Own("Reports/Rep_DeF.vsr~")), "with our logo 1");
    EXPECT_EQ(ReadFile(Own("Reports/Rep_DeF.vsr~2")), "with our logo 2");
}

TEST_F(HomeRenewalTest, ALayoutThatShipsAsBeforeStaysAsTheUserHasIt) {
    Start();
    WriteFile(Own("Reports/Rep_DeF.vsr"), "with our logo");
    Ship("Reports/Rep_DeR.vsr", "a better layout");
    EXPECT_EQ(Start(), HomeState::Renewed);
    EXPECT_EQ(ReadFile(Own("Reports/Rep_DeF.vsr")), "with our logo");
    EXPECT_EQ(ReadFile(Own("Reports/Rep_DeR.vsr")), "a better layout");
}

// --- What stands in the way -----------------------------------------------------------------------------

TEST_F(HomeRenewalTest, NothingIsRenewedUnderAProgramThatRuns) {
    Start();
    Ship("Reports/Rep_DeF.vsr", "a better layout");
    {
        const FileLock running(Own("kvrwork.lck"));
        const std::string before = Checksum(home());
        EXPECT_EQ(Start(), HomeState::AsItWas);
        EXPECT_EQ(Checksum(home()), before);
    }
    EXPECT_EQ(Start(), HomeState::Renewed);
    EXPECT_EQ(ReadFile(Own("Reports/Rep_DeF.vsr")), "a better layout");
}

TEST_F(HomeRenewalTest, ListsThatCannotBeReadAreKeptBesideThoseThatShip) {
    Start();
    WriteFile(Own("DataBase/custom.tpl"), "no database");
    ShipSql("DataBase/custom.tpl", "DELETE FROM ValueDefault WHERE Sort > 3");
    EXPECT_EQ(Start(), HomeState::Renewed);
    EXPECT_EQ(ReadFile(Own("DataBase/custom.tpl~")), "no database");
    EXPECT_EQ(ReadFile(Own("DataBase/custom.tpl")), ReadFile(Shipped("DataBase/custom.tpl")));
}

TEST_F(HomeRenewalTest, TheJournalOfACatalogueThatCannotBeReadIsNotPlayedIntoTheNewOne) {
    Start();
    WriteFile(Own("DataBase/Kelvor.mdb"), "no database");
    WriteFile(Own("DataBase/Kelvor.mdb-journal"), "of what was no database");
    ShipSql("DataBase/Kelvor.mdb", "UPDATE Variable SET \"Desc\" = 'Design traffic' WHERE Name = 'FLEXE18'");
    EXPECT_EQ(Start(), HomeState::Renewed);
    EXPECT_EQ(ReadFile(Own("DataBase/Kelvor.mdb")), ReadFile(Shipped("DataBase/Kelvor.mdb")));
    EXPECT_FALSE(std::filesystem::exists(Own("DataBase/Kelvor.mdb-journal")));
}

TEST_F(HomeRenewalTest, ARenewalThatWasInterruptedIsTakenUp) {
    Start();
    Ship("Reports/Rep_DeF.vsr", "a better layout");
    std::filesystem::remove(Own("Reports/Rep_DeF.vsr"));
    std::filesystem::create_directory(Own("Reports/Rep_DeF.vsr"));  // nothing can be put there
    EXPECT_THROW(Start(), FileError);
    std::filesystem::remove(Own("Reports/Rep_DeF.vsr"));
    EXPECT_EQ(Start(), HomeState::Renewed);
    EXPECT_EQ(ReadFile(Own("Reports/Rep_DeF.vsr")), "a better layout");
}

// --- The list of what ships -----------------------------------------------------------------------------

TEST(ShippedPartsTest, AMarkIsThePublishedHashOfAContent) {
    // The published test values of FNV-1a, 64 bits.
    EXPECT_EQ(ContentMark(""), "cbf29ce484222325");
    EXPECT_EQ(ContentMark("a"), "af63dc4c8601ec8c");
    EXPECT_EQ(ContentMark("foobar"), "85944171f73967e8");
}

TEST(ShippedPartsTest, ANameThatLeadsOutOfTheFolderIsPassedOver) {
    const ShippedParts parts(
        "cbf29ce484222325 Reports/Rep_DeF.vsr\ncbf29ce484222325 ../.profile\ncbf29ce484222325 "
        "/etc/passwd\nwords\n");
    ASSERT_EQ(parts.parts().size(), 1U);
    EXPECT_EQ(parts.MarkOf("Reports/Rep_DeF.vsr"), "cbf29ce484222325");
    EXPECT_EQ(parts.MarkOf("../.profile"), "");
}

}  // namespace
}  // namespace kelvor::test
