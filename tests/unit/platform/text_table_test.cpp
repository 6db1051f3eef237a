#include "make_data/text_table.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

namespace kelvor::test {
namespace {

using Row = std::vector<std::optional<std::string>>;

TEST(TextTableTest, TheFirstLineNamesTheColumnsAndEachOtherOneIsARow) {
    const TextTable table = ParseTextTable("Unit.tsv", "Name\tFactor\nin\t25.4\nft\t0.3048\n");
    EXPECT_EQ(table.name, "Unit.tsv");
    EXPECT_EQ(table.columns, (std::vector<std::string>{"Name", "Factor"}));
    EXPECT_EQ(table.rows, (std::vector<Row>{{"in", "25.4"}, {"ft", "0.3048"}}));
}

TEST(TextTableTest, TheLastLineMayLackItsEnd) {
    EXPECT_EQ(ParseTextTable("t", "A\tB\n1\t2").rows, (std::vector<Row>{{"1", "2"}}));
    EXPECT_EQ(ParseTextTable("t", "A\tB").rows, std::vector<Row>{});
    EXPECT_EQ(ParseTextTable("t", "A\tB\n").columns, (std::vector<std::string>{"A", "B"}));
}

TEST(TextTableTest, AnEmptyCellIsNull) {
    const TextTable table = ParseTextTable("t", "A\tB\tC\n\tx\t\n\t\t\n");
    EXPECT_EQ(table.rows, (std::vector<Row>{{std::nullopt, "x", std::nullopt},
                                            {std::nullopt, std::nullopt, std::nullopt}}));
}

TEST(TextTableTest, AnEmptyLineIsARowOfATableWithOneColumn) {
    EXPECT_EQ(ParseTextTable("t", "A\n\nx\n").rows, (std::vector<Row>{{std::nullopt}, {"x"}}));
}

TEST(TextTableTest, EscapesStandForTabLineFeedAndBackslash) {
    const TextTable table = ParseTextTable("t", "A\tB\na\\tb\tc\\nd\n\\\\\t\\\\n\n\\\\\\t\t \n");
    EXPECT_EQ(table.rows, (std::vector<Row>{{"a\tb", "c\nd"}, {"\\", "\\n"}, {"\\\t", " "}}));
}

TEST(TextTableTest, AnyOtherByteStandsForItself) {
    const TextTable table = ParseTextTable("t", "A\tB\n'\"\t #,;\xC3\xA4 \n");
    EXPECT_EQ(table.rows, (std::vector<Row>{{"'\"", " #,;\xC3\xA4 "}}));
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
