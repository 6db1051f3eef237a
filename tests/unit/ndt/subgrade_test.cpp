// The subgrade modulus of a test on flexible pavement.

#include "ndt_fixture.h"

namespace kelvor::test {
namespace {

class SubgradeTest : public NdtTest {
  protected:
    SubgradeTest() {
        Set({{"NDTR", 36.0}, {"NDTRMC", 1.0}});
        SetRow(1, {{"NDTLOADF", 9000.0}, {"D0F", 18.0}, {"DR", 3.55}});
    }
};

TEST_F(SubgradeTest, ATextbooksTestGivesItsModulus) {
    // Huang, Pavement Analysis and Design, example 13.11: 9,000 lb, 3.55 mils at 36 inches.
    EXPECT_NEAR(Calc("NDTRM", 1).value(), 16'900.0, 50.0);
}

TEST_F(SubgradeTest, TheStoredModulusHoldsItsCorrection) {
    Set({{"NDTR", 48.0}, {"NDTRMC", 0.33}});
    SetRow(2, {{"NDTLOADF", 10'000.0}, {"D0F", 1.0}, {"DR", 5.0}});
    EXPECT_NEAR(Calc("NDTRM", 2).value(), 3300.0, 1e-9);  // 0.33 * 2400 / (0.005 * 48)
    Set({{"NDTRMC", 1.0}});
    EXPECT_NEAR(Calc("NDTRM", 2).value(), 10'000.0, 1e-9);
}

TEST_F(SubgradeTest, AMissingInputEmptiesTheCell) {
    for (const char* missing : {"NDTLOADF", "D0F", "DR"}) {
        const std::optional<double> value = Cell(missing, 1);
        ASSERT_TRUE(Calc("NDTRM", 1).has_value());
        Clear(missing, 1);
        EXPECT_EQ(Calc("NDTRM", 1), std::nullopt) << missing;
        SetRow(1, {{missing, *value}});
    }
    ASSERT_TRUE(Calc("NDTRM", 1).has_value());
    Set({{"NDTR", 0.0}});
    EXPECT_EQ(Calc("NDTRM", 1), std::nullopt);
}

TEST_F(SubgradeTest, ACorrectionThatIsMissingGivesZeroAndNoPavementModulus) {
    Set({{"NDTRMC", 0.0}, {"Radius", 5.9}, {"NDTEFFD", 12.0}});
    SetRow(1, {{"NDTEFFEP", 7.0}});
    EXPECT_EQ(Calc("NDTRM", 1), 0.0);
    EXPECT_EQ(Calc("NDTEFFEP", 1), std::nullopt);
}

TEST_F(SubgradeTest, ABlankOuterDeflectionEmptiesBothAndIsLeftOutOfTheMean) {
    Set({{"Radius", 5.9}, {"NDTEFFD", 12.0}});
    SetRow(2, {{"NDTLOADF", 9000.0}, {"D0F", 18.0}});
    for (const int row : {1, 2}) {
        Calc("NDTRM", row);
        Calc("NDTEFFEP", row);
    }
    EXPECT_EQ(Cell("NDTRM", 2), std::nullopt);
    EXPECT_EQ(Cell("NDTEFFEP", 2), std::nullopt);
    for (const auto& [average, column] : {std::pair("AVGNDTRM", "NDTRM"), {"AVGNDTEFFEP", "NDTEFFEP"}}) {
        program_.program.CalcField(average, average);
        EXPECT_EQ(program_.Get(average), Cell(column, 1)) << average;
    }
}

TEST_F(SubgradeTest, TheResultGoesToTheTargetNamed) {
    program_.program.CalcCell("NDTEFFEP", 1, 1, "NDTRM");
    EXPECT_NEAR(Cell("NDTEFFEP", 1).value(), 16'900.0, 50.0);
    EXPECT_EQ(Cell("NDTRM", 1), std::nullopt);
    Clear("DR", 1);
    program_.program.CalcCell("NDTEFFEP", 1, 1, "NDTRM");
    EXPECT_EQ(Cell("NDTEFFEP", 1), std::nullopt);
}

TEST_F(SubgradeTest, AnOverflowLeavesTheCell) {
    SetRow(1, {{"NDTRM", 7.0}, {"NDTLOADF", 1e308}, {"DR", 1e-300}});
    EXPECT_EQ(Calc("NDTRM", 1), 7.0);
    EXPECT_TRUE(program_.host.record.TakeTexts().empty());
}

}  // namespace
}  // namespace kelvor::test
