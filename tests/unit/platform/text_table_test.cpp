#include "make_data/text_table.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

namespace kelvor::test {
namespace {

using Row = std::vector<std::optional<std::string>>;

/// What the rows of a table hold.
std::vector<Row> RowsOf(const TextTable& table) {
    std::vector<Row> rows;
    for (const TextRow& row : table.rows) rows.push_back(row.cells);
    return rows;
}

TEST(TextTableTest, TheFirstLineNamesTheColumnsAndEachOtherOneIsARow) {
    const TextTable table = ParseTextTable("Unit.tsv", "Name\tFactor\nin\t25.4\nft\t0.3048\n");
    EXPECT_EQ(table.name, "Unit.tsv");
    EXPECT_EQ(table.columns, (std::vector<std::string>{"Name", "Factor"}));
    EXPECT_EQ(RowsOf(table), (std::vector<Row>{{"in", "25.4"}, {"ft", "0.3048"}}));
}

TEST(TextTableTest, TheLastLineMayLackItsEnd) {
    EXPECT_EQ(RowsOf(ParseTextTable("t", "A\tB\n1\t2")), (std::vector<Row>{{"1", "2"}}));
    EXPECT_EQ(RowsOf(ParseTextTable("t", "A\tB")), std::vector<Row>{});
    EXPECT_EQ(ParseTextTable("t", "A\tB\n").columns, (std::vector<std::string>{"A", "B"}));
}

TEST(TextTableTest, AnEmptyCellIsNull) {
    const TextTable table = ParseTextTable("t", "A\tB\tC\n\tx\t\n\t\t\n");
    EXPECT_EQ(RowsOf(table), (std::vector<Row>{{std::nullopt, "x", std::nullopt},
                                               {std::nullopt, std::nullopt, std::nullopt}}));
}

TEST(TextTableTest, AnEmptyLineIsARowOfATableWithOneColumn) {
    EXPECT_EQ(RowsOf(ParseTextTable("t", "A\n\nx\n")), (std::vector<Row>{{std::nullopt}, {"x"}}));
}

TEST(TextTableTest, EscapesStandForBlankTabLineFeedAndBackslash) {
    const TextTable table = ParseTextTable("t", "A\tB\na\\tb\tc\\nd\n\\\\\t\\\\n\n\\\\\\t\t\\s\n");
    EXPECT_EQ(RowsOf(table), (std::vector<Row>{{"a\tb", "c\nd"}, {"\\", "\\n"}, {"\\\t", " "}}));
    EXPECT_EQ(RowsOf(ParseTextTable("t", "A\n\\s\\sl\\s\n")), (std::vector<Row>{{"  l "}}));
}

TEST(TextTableTest, BlanksAroundACellOnlyAlignIt) {
    const TextTable table = ParseTextTable("t", "Name \tUnits  \tDesc\nSN   \t in \t  One two \nRM\t   \t\n");
    EXPECT_EQ(table.columns, (std::vector<std::string>{"Name", "Units", "Desc"}));
    EXPECT_EQ(RowsOf(table), (std::vector<Row>{{"SN", "in", "One two"}, {"RM", std::nullopt, std::nullopt}}));
}

TEST(TextTableTest, AnyOtherByteStandsForItself) {
    const TextTable table = ParseTextTable("t", "A\tB\n'\"\t#,; \xC3\xA4\n");
    EXPECT_EQ(RowsOf(table), (std::vector<Row>{{"'\"", "#,; \xC3\xA4"}}));
}

TEST(TextTableTest, ARowKnowsItsPlace) {
    const TextTable table = ParseTextTable("Unit.tsv", "Name\tFactor\nin\t25.4\nft\tlong\n");
    EXPECT_EQ(table.rows[1].place, "Unit.tsv, line 3");
    EXPECT_THROW(table.rows[1].Refuse("\"long\" is no number"), TextTableError);
}

TEST(TextTableTest, AligningPadsEachCellToItsColumnAndKeepsWhatItSays) {
    const std::string loose =
        "Name\tUnits\tDesc\nSN\t\tStructural number\nEXIST\tm\xC2\xB2\t\nRM\tpsi\tx\\ty\n\t\t\n";
    const std::string aligned =
        "Name \tUnits\tDesc\n"
        "SN   \t     \tStructural number\n"
        "EXIST\tm\xC2\xB2\t\n"
        "RM   \tpsi  \tx\\ty\n"
        "\t\t\n";
    EXPECT_EQ(AlignTextTable("a.tsv", loose), aligned);
    EXPECT_EQ(AlignTextTable("a.tsv", aligned), aligned);
}

struct FaultRow {
    const char* content;
    const char* begin;  // of the message
};

constexpr FaultRow kFaults[] = {
    {"", "Unit.tsv, line 1: "},
    {"\n", "Unit.tsv, line 1: "},
    {"\n1\n", "Unit.tsv, line 1: "},
    {"A\t\n", "Unit.tsv, line 1: "},
    {"\tB\n", "Unit.tsv, line 1: "},
    {"A\t\tC\n1\t2\t3\n", "Unit.tsv, line 1: "},
    {"A\tB\n1\n", "Unit.tsv, line 2: "},
    {"A\tB\n1\t2\t3\n", "Unit.tsv, line 2: "},
    {"A\tB\n1\t2\n\n", "Unit.tsv, line 3: "},
    {"A\tB\n1\t2\n1\t2\n1\t2\t\n", "Unit.tsv, line 4: "},
    {"A\tB\n1\t\\x\n", "Unit.tsv, line 2: "},
    {"A\tB\n1\\\t2\n", "Unit.tsv, line 2: "},
    {"A\tB\n1\t2\\\n", "Unit.tsv, line 2: "},
    {"A\tB\n1\t2\n1\t2\\", "Unit.tsv, line 3: "},
    {"A\tB\n1\t\\\\\\\n", "Unit.tsv, line 2: "},
    {"A\n\\N\n", "Unit.tsv, line 2: "},
};

TEST(TextTableTest, ATableThatIsNotWellFormedIsRefusedWithFileAndLine) {
    for (const FaultRow& row : kFaults) {
        try {
            ParseTextTable("Unit.tsv", row.content);
            ADD_FAILURE() << '"' << row.content << "\" was taken for a table";
        } catch (const TextTableError& failure) {
            const std::string reason = failure.what();
            EXPECT_TRUE(reason.starts_with(row.begin)) << '"' << row.content << "\": " << reason;
            EXPECT_GT(reason.size(), std::string(row.begin).size()) << "it says what is wrong";
        }
    }
}

}  // namespace
}  // namespace kelvor::test
