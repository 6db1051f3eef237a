// Files that were made to do harm. Each is refused or opened within five seconds of work, it stays as it was,
// and the program goes on.

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cstddef>
#include <ctime>

#include "support/project_fixture.h"

namespace kelvor::test {
namespace {

using testing::IsEmpty;
using testing::SizeIs;
using testing::StartsWith;

/// What the process itself may take, so that a busy machine breaks no test.
constexpr double kMostSeconds = 5.0;

double SecondsOfWork() { return static_cast<double>(std::clock()) / CLOCKS_PER_SEC; }

/// Writes bytes at a place of a file.
void Patch(const Path& file, std::size_t place, const std::string& bytes) {
    std::string content = ReadFile(file);
    ASSERT_LE(place + bytes.size(), content.size());
    content.replace(place, bytes.size(), bytes);
    WriteFile(file, content);
}

/// Makes the page in which a table begins its own child. False if the table is a single leaf, which has no
/// children.
bool PointToItself(const Path& file, const std::string& table) {
    std::size_t root = 0;
    std::size_t pageSize = 0;
    {
        const SQLite::Database database(file.string(), SQLite::OPEN_READONLY);
        SQLite::Statement schema(database, "SELECT rootpage FROM sqlite_schema WHERE name = ?");
        schema.bind(1, table);
        if (!schema.executeStep()) return false;
        root = schema.getColumn(0).getUInt();
        SQLite::Statement size(database, "PRAGMA page_size");
        size.executeStep();
        pageSize = size.getColumn(0).getUInt();
    }
    constexpr char kLeaf = 8;                  // this bit of a page's first byte tells a leaf
    constexpr std::size_t kRightMostPage = 8;  // the place of that child's number, by the file format
    const std::size_t page = (root - 1) * pageSize;
    if ((ReadFile(file).at(page) & kLeaf) != 0 || root > 255) return false;
    Patch(file, page + kRightMostPage, std::string(3, '\0') + static_cast<char>(root));
    return true;
}

void ReplaceByPipe(const Path& file) {
    std::filesystem::remove(file);
    ASSERT_EQ(::mkfifo(file.c_str(), 0600), 0);
}

void ReplaceByEndlessDevice(const Path& file) {
    std::filesystem::remove(file);
    std::filesystem::create_symlink("/dev/zero", file);
}

/// Rows without a value, so many of them.
std::string ManyRows(const std::string& into, int count) {
    return "PRAGMA synchronous = OFF; WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n "
           "WHERE i < " +
           std::to_string(count) + ") INSERT INTO " + into + " FROM n";
}

// --- Projects ----------------------------------------------------------------------------------------------

class HostileProjectTest : public ProjectTest {
  protected:
    HostileProjectTest() {
        EXPECT_TRUE(Run().SaveAs(Hostile()));
        EXPECT_TRUE(Run().NewProject());
        Enter("SN", "5");
        EXPECT_TRUE(Run().SaveAs(File("good.kvr")));
        good_ = ReadFile(File("good.kvr"));
    }

    [[nodiscard]] std::string Hostile() const { return File("hostile.kvr"); }

    /// Opens the file, which lies ready. The message; empty if it was opened.
    std::string Open() {
        const double start = SecondsOfWork();
        const bool opened = Run().OpenProject(Hostile());
        EXPECT_LT(SecondsOfWork() - start, kMostSeconds);
        const std::vector<std::string> messages = Messages();
        EXPECT_THAT(messages, SizeIs(opened ? 0 : 1));
        EXPECT_EQ(State().dbWork.IsOpen(), opened);
        if (opened) {
            EXPECT_THAT(State().dbWork.CompareWithWorkCopy(), IsEmpty());
        }
        EXPECT_EQ(ReadFile(File("good.kvr")), good_);
        EXPECT_TRUE(Run().OpenProject(File("good.kvr"))) << "the work goes on";
        EXPECT_EQ(Get("SN"), 5.0);
        return messages.empty() ? "" : messages[0];
    }

    /// The same, and checks that opening leaves the file as it is.
    std::string OpenUnchanged() {
        const std::string before = ReadFile(Hostile());
        std::string message = Open();
        EXPECT_TRUE(ReadFile(Hostile()) == before) << "opening changed the file";
        return message;
    }

    [[nodiscard]] std::string Refusal(const std::string& reason) const {
        return "Error loading from " + Hostile() + ": " + reason;
    }

  private:
    std::string good_;
};

TEST_F(HostileProjectTest, AComputedColumnIsRefused) {
    RunSql(Hostile(),
           "DROP TABLE Project; CREATE TABLE Project (Name TEXT NOT NULL COLLATE NOCASE, Dim1 INTEGER NOT "
           "NULL, Dim2 INTEGER NOT NULL, RValue REAL, SValue TEXT AS (hex(zeroblob(1000000))) VIRTUAL, "
           "PRIMARY KEY (Name, Dim1, Dim2)) WITHOUT ROWID");
    EXPECT_EQ(OpenUnchanged(), Refusal("table Project has computed columns"));
}

TEST_F(HostileProjectTest, AHugeNumberOfRowsIsNotEvenRead) {
    RunSql(Hostile(), ManyRows("Project SELECT 'Extra' || printf('%07d', i), 1, 1, i, NULL", 300'000));
    EXPECT_EQ(OpenUnchanged(), Refusal("table Project has too many rows"));
}

TEST_F(HostileProjectTest, MoreBytesThanAnyProjectHasAreNotEvenRead) {
    std::filesystem::resize_file(Hostile(), 40'000'000'000U);  // most of it takes no room on the disk
    EXPECT_EQ(Open(), Refusal("File too large"));
}

TEST_F(HostileProjectTest, ANameOfTenMegabytesIsRefused) {
    RunSql(Hostile(), "INSERT INTO Project VALUES (hex(zeroblob(5000000)), 1, 1, 1, NULL)");
    EXPECT_EQ(OpenUnchanged(), Refusal("string or blob too big"));
}

TEST_F(HostileProjectTest, ATextOfTenMegabytesIsRefused) {
    RunSql(Hostile(), "UPDATE Project SET SValue = hex(zeroblob(5000000)) WHERE Name = 'Agency'");
    EXPECT_EQ(OpenUnchanged(), Refusal("string or blob too big"));
}

TEST_F(HostileProjectTest, APageThatPointsToItselfIsRefused) {
    ASSERT_TRUE(PointToItself(Hostile(), "Project"));
    EXPECT_THAT(OpenUnchanged(), StartsWith(Refusal("")));
}

TEST_F(HostileProjectTest, AFreeListThatRunsInACircleIsRefused) {
    constexpr std::size_t kFirstFreePage = 32;  // its place in the header, by the file format
    Patch(Hostile(), kFirstFreePage, std::string("\0\0\0\x03\0\0\xFF\xFF", 8));
    EXPECT_THAT(OpenUnchanged(), StartsWith(Refusal("")));
}

TEST_F(HostileProjectTest, AHeaderThatAllowsReadingAloneIsRefused) {
    constexpr std::size_t kWriteVersion = 18;  // its place in the header, by the file format
    Patch(Hostile(), kWriteVersion, "\x03");
    EXPECT_EQ(OpenUnchanged(), Refusal("attempt to write a readonly database"));
}

TEST_F(HostileProjectTest, AHeaderThatClaimsAWriteAheadLogIsRefusedAndTheLogLeftAlone) {
    constexpr std::size_t kFileFormat = 18;  // its place in the header, by the file format
    Patch(Hostile(), kFileFormat, "\x02\x02");
    WriteFile(Hostile() + "-wal", "what another program has not yet written into the file");
    EXPECT_THAT(OpenUnchanged(), StartsWith(Refusal("")));
    EXPECT_EQ(ReadFile(Hostile() + "-wal"), "what another program has not yet written into the file");
}

TEST_F(HostileProjectTest, AJournalBesideTheFileIsNotPlayedIntoIt) {
    WriteFile(Hostile() + "-journal", ReadFile(Hostile()));
    EXPECT_EQ(OpenUnchanged(), "");
    EXPECT_TRUE(std::filesystem::exists(Hostile() + "-journal"));
}

TEST_F(HostileProjectTest, ACircleOfLinksIsRefused) {
    std::filesystem::remove(Hostile());
    std::filesystem::create_symlink(Hostile(), File("round.kvr"));
    std::filesystem::create_symlink(File("round.kvr"), Hostile());
    EXPECT_EQ(Open(), Refusal("Too many levels of symbolic links"));
}

/// A file that another process cuts while it is read.
class ShrinkingFiles : public NativeFileSystem {
  public:
    [[nodiscard]] std::string Read(const Path& path, std::size_t limit) const override {
        if (shrinking && path.filename() == "hostile.kvr") {
            std::filesystem::resize_file(path, std::filesystem::file_size(path) / 2);
        }
        return NativeFileSystem::Read(path, limit);
    }

    bool shrinking = false;
};

TEST(ShrinkingFileTest, AFileThatShrinksWhileItIsOpenedIsRefused) {
    const TestHome home;
    const TemporaryFolder folder;
    const std::string path = folder / "hostile.kvr";
    TestHost host;
    ShrinkingFiles files;
    host.fileSystem = &files;
    Program program(host.host(), home.home());
    ASSERT_EQ(program.Start(""), StartResult::Running);
    program.SetValue("SN", 1, 1, "5");
    ASSERT_TRUE(program.SaveAs(path));
    files.shrinking = true;
    EXPECT_FALSE(program.OpenProject(path));
    EXPECT_THAT(host.record.TakeTexts(), testing::ElementsAre(StartsWith("Error loading from " + path)));
    files.shrinking = false;
    EXPECT_TRUE(program.NewProject()) << "the work goes on";
    EXPECT_TRUE(program.SaveAs(path));
}

// --- Lists and catalogue -----------------------------------------------------------------------------------

struct HostileDatabase {
    const char* file;
    const char* bigTable;  // one of more than a page
    const char* rows;      // what fills a table with `i` as its text
    const char* oneRow;    // and with one row of a text, which follows
};

class HostileDatabaseTest : public testing::TestWithParam<HostileDatabase> {
  protected:
    [[nodiscard]] Path File() const { return home_ / GetParam().file; }

    /// What the start says. It runs without its lists; without its catalogue it stops.
    std::vector<std::string> Start() {
        const double start = SecondsOfWork();
        TestHost host;
        Program program(host.host(), home_.home());
        const bool runs = program.Start("") == StartResult::Running;
        std::vector<std::string> messages = host.record.TakeTexts();
        if (runs) {
            program.Raise({UserEvent::Kind::OpenForm, "LayDet"});  // a screen with lists
            program.Raise({UserEvent::Kind::SwitchTab, {}, {}, 6});
            program.SetValue("SN", 1, 1, "5");
            EXPECT_TRUE(program.SaveAs((home_ / "good.kvr").string()));
            EXPECT_EQ(NumberInFile(home_ / "good.kvr", "SN"), 5.0);
        } else {
            EXPECT_THAT(messages, SizeIs(1)) << "a stop says why";
        }
        EXPECT_LT(SecondsOfWork() - start, kMostSeconds);
        return messages;
    }

    void ExpectTold(int number, const std::string& reason) {
        EXPECT_THAT(Start(), testing::ElementsAre("Error in MainFunction Error Number : " +
                                                  std::to_string(number) + "\n" + reason));
    }

    TestHome home_;
};

TEST_P(HostileDatabaseTest, APipeIsNotWaitedFor) {
    ReplaceByPipe(File());
    ExpectTold(3049, "Not a regular file");
}

TEST_P(HostileDatabaseTest, ADeviceWithoutEndIsNotRead) {
    ReplaceByEndlessDevice(File());
    ExpectTold(3049, "Not a regular file");
}

TEST_P(HostileDatabaseTest, ATriggerDoesNotRun) {
    const std::string table = GetParam().bigTable;
    RunSql(File(),
           "CREATE TRIGGER T AFTER UPDATE ON \"" + table + "\" BEGIN DELETE FROM \"" + table + "\"; END");
    ExpectTold(3343, "trigger T does not belong there");
}

TEST_P(HostileDatabaseTest, AComputedColumnIsRefused) {
    const std::string table = GetParam().bigTable;
    RunSql(File(), "ALTER TABLE \"" + table + "\" ADD COLUMN More TEXT AS (hex(zeroblob(1000000))) VIRTUAL");
    ExpectTold(3343, "table " + table + " has other columns");
}

TEST_P(HostileDatabaseTest, AHugeNumberOfRowsIsNotRead) {
    RunSql(File(), ManyRows(GetParam().rows, 150'000));
    EXPECT_THAT(Start(), testing::ElementsAre(testing::HasSubstr(" has too many rows")));
}

TEST_P(HostileDatabaseTest, ANameOfTenMegabytesCostsAtMostTheListsThatHoldIt) {
    RunSql(File(), std::string(GetParam().oneRow) + "hex(zeroblob(5000000)))");
    Start();
}

TEST_P(HostileDatabaseTest, APageThatPointsToItselfIsToldOrDoesNoHarm) {
    ASSERT_TRUE(PointToItself(File(), GetParam().bigTable));
    Start();
}

TEST_P(HostileDatabaseTest, AHeaderThatClaimsAWriteAheadLogDoesNoHarm) {
    constexpr std::size_t kFileFormat = 18;  // its place in the header, by the file format
    Patch(File(), kFileFormat, "\x02\x02");
    Start();
}

INSTANTIATE_TEST_SUITE_P(
    Files, HostileDatabaseTest,
    testing::Values(HostileDatabase{"DataBase/custom.tpl", "Value",
                                    R"("Value" (Name, "Value") SELECT 'Many', i)",
                                    R"(INSERT INTO "Value" (Description, Name) VALUES ('Long', )"},
                    HostileDatabase{"DataBase/Kelvor.mdb", "Variable",
                                    "Label (Screen, Label) SELECT 'DeF', i",
                                    "INSERT INTO Variable (Name) VALUES ("}),
    [](const auto& database) { return Path(database.param.file).stem().string(); });

// --- Settings ----------------------------------------------------------------------------------------------

class HostileSettingsTest : public testing::Test {
  protected:
    /// The one message with which the start stops.
    std::string Stop() {
        const double start = SecondsOfWork();
        TestHost host;
        Program program(host.host(), home_.home());
        EXPECT_EQ(program.Start(""), StartResult::Stopped);
        EXPECT_LT(SecondsOfWork() - start, kMostSeconds);
        const std::vector<std::string> messages = host.record.TakeTexts();
        EXPECT_THAT(messages, SizeIs(1));
        return messages.empty() ? "" : messages[0];
    }

    [[nodiscard]] Path File() const { return home_ / "kvor.ini"; }

    static constexpr const char* kUnreadable =
        "Error reading .INI values\n(unable to locate application file)";

    TestHome home_;
};

TEST_F(HostileSettingsTest, APipeIsNotWaitedFor) {
    ReplaceByPipe(File());
    EXPECT_EQ(Stop(), kUnreadable);
}

TEST_F(HostileSettingsTest, ADeviceWithoutEndIsNotRead) {
    ReplaceByEndlessDevice(File());
    EXPECT_EQ(Stop(), kUnreadable);
}

TEST_F(HostileSettingsTest, AFolderIsNone) {
    std::filesystem::remove(File());
    std::filesystem::create_directory(File());
    EXPECT_EQ(Stop(), "Error reading .INI values\n(unable to locate ini file)\nPlease reinstall Kelvor");
}

TEST_F(HostileSettingsTest, ALineOfTenMegabytesIsNotRead) {
    std::string line;
    line.resize(10'000'000, 'x');
    WriteFile(File(), "[kvor]\nApplication=" + line + "\n");
    EXPECT_EQ(Stop(), kUnreadable);
}

TEST_F(HostileSettingsTest, ANameWithoutEndIsNoDatabase) {
    WriteFile(File(), "[kvor]\nApplication=" + std::string(900'000, 'x') + "\nCustom=custom.tpl\n");
    EXPECT_THAT(Stop(), StartsWith("One file is missing (xxx"));
}

}  // namespace
}  // namespace kelvor::test
