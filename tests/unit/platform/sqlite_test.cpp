#include "platform/sqlite.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "support/test_home.h"

namespace kelvor::test {
namespace {

class SqliteTest : public testing::Test {
  protected:
    /// Makes a database by a list of statements.
    void Make(const std::string& statements) {
        std::filesystem::remove(file_);
        SQLite::Database database(file_.string(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
        database.exec(statements);
    }

    /// A database of one table with `rows` numbers in it.
    void MakeNumbers(int rows) {
        Make(
            "PRAGMA page_size = 4096; CREATE TABLE Number (Id INTEGER PRIMARY KEY, Text TEXT);"
            "WITH RECURSIVE counter(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM counter WHERE i < " +
            std::to_string(rows) + ") INSERT INTO Number SELECT i, printf('%0100d', i) FROM counter");
    }

    struct Failure {
        bool notADatabase;
        std::string reason;
    };

    /// Why a file cannot be opened; nothing if it can.
    [[nodiscard]] static std::optional<Failure> FailureOfOpening(const Path& path, DatabaseAccess access) {
        try {
            OpenDatabase(path, access);
            return std::nullopt;
        } catch (const DatabaseError& failure) {
            return Failure{failure.notADatabase(), failure.what()};
        }
    }

    TemporaryFolder folder_;
    Path file_ = folder_ / "test.db";
};

constexpr DatabaseAccess kAccesses[] = {DatabaseAccess::ReadOnly, DatabaseAccess::ReadWrite};

// --- opening ----------------------------------------------------------------------------------------

TEST_F(SqliteTest, ADatabaseOpensForReadingOrWriting) {
    MakeNumbers(10);
    {
        SQLite::Database database = OpenDatabase(file_, DatabaseAccess::ReadWrite);
        database.exec("DELETE FROM Number WHERE Id = 10");
        EXPECT_EQ(database.execAndGet("SELECT count(*) FROM Number").getInt(), 9);
    }
    SQLite::Database database = OpenDatabase(file_, DatabaseAccess::ReadOnly);
    EXPECT_EQ(database.execAndGet("SELECT count(*) FROM Number").getInt(), 9);
    EXPECT_THROW(database.exec("DELETE FROM Number"), SQLite::Exception);
}

TEST_F(SqliteTest, AContentIsReadWithoutAFileAndStaysAsItIs) {
    MakeNumbers(10);
    const std::string before = ReadFile(file_);
    const std::string content = ReadFile(file_);
    std::filesystem::remove(file_);
    SQLite::Database database = OpenContent(content);
    EXPECT_EQ(database.execAndGet("SELECT count(*) FROM Number").getInt(), 10);
    EXPECT_THROW(database.exec("DELETE FROM Number"), SQLite::Exception);
    EXPECT_EQ(content, before);
}

TEST_F(SqliteTest, AContentThatIsNoDatabaseShowsWhenItIsRead) {
    for (const std::string& content : {std::string(), std::string("x"), std::string(20000, 'x')}) {
        EXPECT_ANY_THROW({
            SQLite::Database database = OpenContent(content);
            database.execAndGet("SELECT count(*) FROM Number");
        }) << content.size();
    }
}

TEST_F(SqliteTest, WhatIsNoDatabaseIsToldFromOneWithAFault) {
    MakeNumbers(10);
    const std::string whole = ReadFile(file_);
    WriteFile(folder_ / "empty", "");
    WriteFile(folder_ / "one byte", "x");
    WriteFile(folder_ / "short text", "Agency\tCounty\n");
    WriteFile(folder_ / "long text", std::string(20000, 'x'));
    WriteFile(folder_ / "zeros", std::string(8192, '\0'));
    WriteFile(folder_ / "nearly", "SQLite format 4" + whole.substr(15));
    for (const DatabaseAccess access : kAccesses) {
        for (const char* name : {"empty", "one byte", "short text", "long text", "zeros", "nearly"}) {
            const auto failure = FailureOfOpening(folder_ / name, access);
            ASSERT_TRUE(failure) << name;
            EXPECT_TRUE(failure->notADatabase) << name << ": " << failure->reason;
            EXPECT_NE(failure->reason, "") << name;
        }
        for (const Path& path : {folder_ / "missing", folder_ / "none" / "file", folder_.path()}) {
            const auto failure = FailureOfOpening(path, access);
            ASSERT_TRUE(failure) << path;
            EXPECT_FALSE(failure->notADatabase) << path << ": " << failure->reason;
            EXPECT_NE(failure->reason, "") << path;
        }
    }
    EXPECT_FALSE(std::filesystem::exists(folder_ / "missing")) << "a missing file is not made";
    EXPECT_EQ(ReadFile(folder_ / "short text"), "Agency\tCounty\n");
}

TEST_F(SqliteTest, ACutDatabaseIsRefused) {
    MakeNumbers(200);
    const std::string whole = ReadFile(file_);
    ASSERT_GT(whole.size(), 5U * 4096U);
    ASSERT_FALSE(FailureOfOpening(file_, DatabaseAccess::ReadOnly));
    std::vector<std::size_t> lengths = {
        1, 15, 16, 99, 100, 101, 511, 512, 513, 1023, 1024, 4095, whole.size() - 1};
    for (std::size_t length = 4096; length < whole.size(); length += 1024) lengths.push_back(length);
    for (const std::size_t length : lengths) {
        WriteFile(file_, whole.substr(0, length));
        for (const DatabaseAccess access : kAccesses) {
            EXPECT_TRUE(FailureOfOpening(file_, access)) << length << " of " << whole.size() << " bytes";
        }
        EXPECT_EQ(ReadFile(file_), whole.substr(0, length)) << "a file that is refused stays as it is";
    }
}

TEST_F(SqliteTest, ADatabaseWithTheEndOfAnotherFileIsRefusedAsFaulty) {
    MakeNumbers(200);
    const std::string whole = ReadFile(file_);
    WriteFile(file_, whole.substr(0, 8192));
    const auto failure = FailureOfOpening(file_, DatabaseAccess::ReadWrite);
    ASSERT_TRUE(failure);
    EXPECT_FALSE(failure->notADatabase) << failure->reason;
}

TEST_F(SqliteTest, ADamagedPageGivesAnErrorInsteadOfNonsense) {
    MakeNumbers(200);
    std::string content = ReadFile(file_);
    // The table's pages are filled from their ends; their first bytes tell what lies where.
    for (std::size_t page = 4096; page < content.size(); page += 4096) content.replace(page, 16, 16, '\xFF');
    WriteFile(file_, content);
    SQLite::Database database = OpenDatabase(file_, DatabaseAccess::ReadOnly);
    EXPECT_THROW(database.execAndGet("SELECT count(*) FROM Number").getInt(), SQLite::Exception);
}

// --- distrust ---------------------------------------------------------------------------------------

TEST_F(SqliteTest, NoTriggerRunsAndNoViewIsRead) {
    Make(
        "CREATE TABLE Number (Id INTEGER, Text TEXT); CREATE TABLE Trace (Id INTEGER);"
        "INSERT INTO Number VALUES (1, 'one');"
        "CREATE TRIGGER Spy AFTER INSERT ON Number BEGIN INSERT INTO Trace VALUES (new.Id); END;"
        "CREATE VIEW Seen AS SELECT * FROM Number");
    {
        SQLite::Database plain(file_.string(), SQLite::OPEN_READWRITE);
        plain.exec("INSERT INTO Number VALUES (2, 'two')");
        ASSERT_EQ(plain.execAndGet("SELECT count(*) FROM Trace").getInt(), 1) << "the trigger works";
        ASSERT_EQ(plain.execAndGet("SELECT count(*) FROM Seen").getInt(), 2) << "the view works";
    }
    SQLite::Database database = OpenDatabase(file_, DatabaseAccess::ReadWrite);
    database.exec("INSERT INTO Number VALUES (3, 'three')");
    EXPECT_EQ(database.execAndGet("SELECT count(*) FROM Trace").getInt(), 1);
    EXPECT_THROW(database.execAndGet("SELECT count(*) FROM Seen").getInt(), SQLite::Exception);
}

TEST_F(SqliteTest, TheSchemaCannotBeForged) {
    MakeNumbers(1);
    SQLite::Database database = OpenDatabase(file_, DatabaseAccess::ReadWrite);
    database.exec("PRAGMA writable_schema = ON");
    EXPECT_THROW(database.exec("UPDATE sqlite_schema SET sql = 'x'"), SQLite::Exception);
}

/// Counts its calls in the int that it was registered with.
void Spy(sqlite3_context* context, int /*count*/, sqlite3_value** /*arguments*/) {
    ++*static_cast<int*>(sqlite3_user_data(context));
    sqlite3_result_int(context, 1);
}

TEST_F(SqliteTest, TheSchemaRunsNoFunctionOfTheProgram) {
    int calls = 0;
    {
        SQLite::Database plain(file_.string(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
        plain.createFunction("spy", 0, false, &calls, Spy);
        plain.exec(
            "CREATE TABLE Number (Id INTEGER, Text TEXT DEFAULT (spy())); INSERT INTO Number (Id) VALUES "
            "(1)");
        ASSERT_EQ(calls, 1) << "the default works";
    }
    SQLite::Database database = OpenDatabase(file_, DatabaseAccess::ReadWrite);
    database.createFunction("spy", 0, false, &calls, Spy);
    EXPECT_THROW(database.exec("INSERT INTO Number (Id) VALUES (2)"), SQLite::Exception);
    EXPECT_EQ(calls, 1);
}

TEST_F(SqliteTest, AValueOfManyMegabytesIsNotRead) {
    Make(
        "CREATE TABLE Number (Id INTEGER, Text TEXT);"
        "INSERT INTO Number VALUES (1, hex(zeroblob(1000000))), (2, hex(zeroblob(5000000)))");
    SQLite::Database database = OpenDatabase(file_, DatabaseAccess::ReadOnly);
    EXPECT_EQ(database.execAndGet("SELECT Text FROM Number WHERE Id = 1").getString().size(), 2000000U);
    EXPECT_THROW((void)database.execAndGet("SELECT Text FROM Number WHERE Id = 2").getString(),
                 SQLite::Exception);
}

TEST_F(SqliteTest, NoExtensionIsLoaded) {
    MakeNumbers(1);
    SQLite::Database database = OpenDatabase(file_, DatabaseAccess::ReadWrite);
    EXPECT_THROW(database.exec("SELECT load_extension('none')"), SQLite::Exception);
}

// --- shapes -----------------------------------------------------------------------------------------

struct ShapeRow {
    const char* description;
    const char* statements;
    bool fits;
    bool fitsAlone;  // with nothing else allowed in the database
};

constexpr ShapeRow kShapeRows[] = {
    {"as it should be", "CREATE TABLE Cell (Name TEXT, Value REAL)", true, true},
    {"names in other case", "CREATE TABLE CELL (NAME TEXT, value REAL)", true, true},
    {"a table without rowid", "CREATE TABLE Cell (Name TEXT PRIMARY KEY, Value REAL) WITHOUT ROWID", true,
     true},
    {"a column missing", "CREATE TABLE Cell (Name TEXT)", false, false},
    {"a column more", "CREATE TABLE Cell (Name TEXT, Value REAL, More TEXT)", false, false},
    {"a column more before the others", "CREATE TABLE Cell (More TEXT, Name TEXT, Value REAL)", false, false},
    {"columns in another order", "CREATE TABLE Cell (Value REAL, Name TEXT)", false, false},
    {"a column of another name", "CREATE TABLE Cell (Name TEXT, Number REAL)", false, false},
    {"a computed column more", "CREATE TABLE Cell (Name TEXT, Value REAL, More AS (Value * 2))", false,
     false},
    {"a stored computed column more", "CREATE TABLE Cell (Name TEXT, Value REAL, More AS (Value * 2) STORED)",
     false, false},
    {"the table missing", "CREATE TABLE Other (Name TEXT, Value REAL)", false, false},
    {"nothing at all", "PRAGMA user_version = 1", false, false},
    {"a view in its place",
     "CREATE TABLE Other (Name TEXT, Value REAL); CREATE VIEW Cell AS SELECT * FROM Other", false, false},
    {"another table", "CREATE TABLE Cell (Name TEXT, Value REAL); CREATE TABLE Other (Id INTEGER)", true,
     false},
    {"an index", "CREATE TABLE Cell (Name TEXT, Value REAL); CREATE INDEX ByValue ON Cell (Value)", true,
     false},
    {"an index of the table's name in another case",
     "CREATE TABLE Cell (Name TEXT, Value REAL); CREATE UNIQUE INDEX ByName ON Cell (Name)", true, false},
    {"a view", "CREATE TABLE Cell (Name TEXT, Value REAL); CREATE VIEW Seen AS SELECT * FROM Cell", false,
     false},
    {"a trigger",
     "CREATE TABLE Cell (Name TEXT, Value REAL);"
     "CREATE TRIGGER Spy AFTER INSERT ON Cell BEGIN DELETE FROM Cell; END",
     false, false},
    {"a trigger of the table's name",
     "CREATE TABLE Cell (Name TEXT, Value REAL);"
     "CREATE TRIGGER Cell AFTER INSERT ON Cell BEGIN DELETE FROM Cell; END",
     false, false},
};

TEST_F(SqliteTest, ADatabaseHasTheShapeOrIsRefused) {
    const std::vector<TableShape> shape = {{"Cell", {"Name", "Value"}}};
    for (const ShapeRow& row : kShapeRows) {
        Make(row.statements);
        SQLite::Database database = OpenDatabase(file_, DatabaseAccess::ReadOnly);
        for (const bool only : {false, true}) {
            bool fits = true;
            try {
                CheckShape(database, shape, only);
            } catch (const DatabaseError& failure) {
                fits = false;
                EXPECT_FALSE(failure.notADatabase()) << row.description;
                EXPECT_STRNE(failure.what(), "") << row.description;
            }
            EXPECT_EQ(fits, only ? row.fitsAlone : row.fits) << row.description << (only ? ", alone" : "");
        }
    }
}

TEST_F(SqliteTest, EveryTableOfAShapeIsLookedAt) {
    Make("CREATE TABLE First (A TEXT); CREATE TABLE Second (B TEXT)");
    SQLite::Database database = OpenDatabase(file_, DatabaseAccess::ReadOnly);
    EXPECT_NO_THROW(CheckShape(database, {{"First", {"A"}}, {"Second", {"B"}}}, true));
    EXPECT_THROW(CheckShape(database, {{"First", {"A"}}, {"Second", {"C"}}}, true), DatabaseError);
    EXPECT_THROW(CheckShape(database, {{"First", {"C"}}, {"Second", {"B"}}}, true), DatabaseError);
    EXPECT_THROW(CheckShape(database, {{"First", {"A"}}}, true), DatabaseError);
    EXPECT_NO_THROW(CheckShape(database, {{"First", {"A"}}}, false));
}

// --- reading many rows ------------------------------------------------------------------------------

TEST_F(SqliteTest, EveryRowIsVisitedInTheOrderOfItsTable) {
    Make(
        "CREATE TABLE Cell (Name TEXT COLLATE NOCASE, Place INTEGER, PRIMARY KEY (Name, Place)) WITHOUT "
        "ROWID;"
        "INSERT INTO Cell VALUES ('b', 2), ('C', 1), ('b', 1), ('A', 10), ('A', 9);"
        "CREATE TABLE Line (Name TEXT PRIMARY KEY); INSERT INTO Line VALUES ('z'), ('y'), ('x')");
    SQLite::Database database = OpenDatabase(file_, DatabaseAccess::ReadOnly);
    std::vector<std::string> cells;
    VisitRows(database, "Cell", "Name, Place", "Name, Place", [&](const RowView& row) {
        cells.push_back(std::string(row.Letters(0)) + std::to_string(row.Whole(1).value_or(-1)));
    });
    EXPECT_EQ(cells, (std::vector<std::string>{"A9", "A10", "b1", "b2", "C1"}));
    std::string lines;
    VisitRows(database, "Line", "Name", "rowid", [&](const RowView& row) { lines += row.Letters(0); });
    EXPECT_EQ(lines, "zyx") << "as they were inserted, not as the index of the key has them";
}

TEST_F(SqliteTest, AVisitedValueIsWhatItIs) {
    Make(
        "CREATE TABLE Cell (Value); INSERT INTO Cell VALUES (7), (2.5), ('7'), (NULL), (x'4142'), ('a' || "
        "char(0) || 'b'), (9223372036854775807)");
    SQLite::Database database = OpenDatabase(file_, DatabaseAccess::ReadOnly);
    std::vector<std::optional<std::int64_t>> wholes;
    std::vector<std::optional<double>> numbers;
    std::vector<std::string> letters;
    std::vector<bool> texts;
    VisitRows(database, "Cell", "Value", "rowid", [&](const RowView& row) {
        wholes.push_back(row.Whole(0));
        numbers.push_back(row.Number(0));
        texts.push_back(row.IsText(0));
        letters.emplace_back(row.Letters(0));
    });
    constexpr auto kNone = std::nullopt;
    EXPECT_EQ(wholes, (std::vector<std::optional<std::int64_t>>{7, kNone, kNone, kNone, kNone, kNone,
                                                                9223372036854775807}));
    EXPECT_EQ(numbers, (std::vector<std::optional<double>>{7.0, 2.5, kNone, kNone, kNone, kNone, 0x1p63}));
    EXPECT_EQ(texts, (std::vector<bool>{false, false, true, false, false, true, false}));
    EXPECT_EQ(letters, (std::vector<std::string>{"7", "2.5", "7", "", "AB", std::string("a\0b", 3),
                                                 "9223372036854775807"}));
}

TEST_F(SqliteTest, WhatAVisitThrowsArrivesAndEndsTheVisit) {
    MakeNumbers(100);
    SQLite::Database database = OpenDatabase(file_, DatabaseAccess::ReadWrite);
    int visited = 0;
    const auto visitFive = [&] {
        VisitRows(database, "Number", "Id", "rowid", [&](const RowView&) {
            if (++visited == 5) throw std::out_of_range("enough");
        });
    };
    EXPECT_THROW(visitFive(), std::out_of_range);
    EXPECT_EQ(visited, 5);
    visitFive();
    EXPECT_EQ(visited, 105) << "another visit of the same database is whole";
    EXPECT_EQ(database.exec("DELETE FROM Number"), 100) << "nothing is left open";
}

TEST_F(SqliteTest, ATableThatCannotBeVisitedIsAFailure) {
    MakeNumbers(5000);
    const auto visit = [&](const std::string& table, const std::string& column) {
        SQLite::Database database = OpenDatabase(file_, DatabaseAccess::ReadOnly);
        VisitRows(database, table, column, "rowid", [](const RowView&) {});
    };
    EXPECT_NO_THROW(visit("Number", "Id"));
    EXPECT_THROW(visit("NoSuch", "Id"), DatabaseError);
    EXPECT_THROW(visit("Number", "NoSuch"), DatabaseError);
    std::string damaged = ReadFile(file_);
    WriteFile(file_, damaged.replace(damaged.size() / 2 / 4096 * 4096, 4096, 4096, '\xA5'));
    EXPECT_THROW(visit("Number", "Text"), DatabaseError);
}

TEST_F(SqliteTest, AFailureOfTheLibraryBecomesAReason) {
    const DatabaseError notADatabase = ToDatabaseError(SQLite::Exception("no", SQLITE_NOTADB));
    EXPECT_TRUE(notADatabase.notADatabase());
    EXPECT_STREQ(notADatabase.what(), "no");
    EXPECT_FALSE(ToDatabaseError(SQLite::Exception("no", SQLITE_CORRUPT)).notADatabase());
    EXPECT_FALSE(ToDatabaseError(SQLite::Exception("no", SQLITE_CANTOPEN)).notADatabase());
}

}  // namespace
}  // namespace kelvor::test
