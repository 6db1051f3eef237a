#include <iterator>

#include "ndt_fixture.h"

namespace kelvor::test {
namespace {

using ColumnAverageTest = NdtTest;

struct Average {
    const char *key, *column;
};

constexpr Average kAverages[] = {
    {"AVGNDTRM", "NDTRM"}, {"AVGNDTEFFEP", "NDTEFFEP"}, {"AVGBACKL", "BACKL"}, {"AVGBACKLC", "BACKLC"},
    {"AVGSTATK", "STATK"}, {"AVGSTATKC", "STATKC"},     {"AVGNDTE", "NDTE"},   {"AVGNDTEC", "NDTEC"}};

TEST_F(ColumnAverageTest, EachIsTheMeanOfItsOwnColumn) {
    double value = 10.0;
    for (const Average& average : kAverages) SetRow(1, {{average.column, value += 1.0}});
    value = 10.0;
    for (const Average& average : kAverages) {
        program_.program.CalcField(average.key, average.key);
        EXPECT_EQ(program_.Get(average.key), value += 1.0) << average.key;
    }
}

TEST_F(ColumnAverageTest, ATestWithoutAValueIsLeftOutAndAZeroCounts) {
    for (const Average& average : kAverages) {
        SetRow(2, {{average.column, 30.0}});
        SetRow(3, {{average.column, 0.0}});
        SetRow(300, {{average.column, 60.0}});
        program_.program.CalcField(average.key, average.key);
        EXPECT_EQ(program_.Get(average.key), 30.0) << average.key;
        Clear(average.column, 3);
        program_.program.CalcField(average.key, average.key);
        EXPECT_EQ(program_.Get(average.key), 45.0) << average.key;
    }
}

TEST_F(ColumnAverageTest, OfNoTestsItIsZero) {
    for (const Average& average : kAverages) {
        program_.Set(average.key, 7.0);
        program_.program.CalcField(average.key, average.key);
        EXPECT_EQ(store().FindCell(average.key, 1, 1)->number, 0.0) << average.key;
    }
}

TEST_F(ColumnAverageTest, ASumBeyondADoubleLeavesTheMean) {
    program_.Set("AVGNDTRM", 7.0);
    SetRow(1, {{"NDTRM", 1.7e308}});
    SetRow(2, {{"NDTRM", 1.7e308}});
    program_.program.CalcField("AVGNDTRM", "AVGNDTRM");
    EXPECT_EQ(program_.Get("AVGNDTRM"), 7.0);
}

}  // namespace
}  // namespace kelvor::test
