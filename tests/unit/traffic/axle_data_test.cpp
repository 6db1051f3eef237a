#include <vector>

#include "reference_factors.h"
#include "traffic_fixture.h"

namespace kelvor::test {
namespace {

class AxleDataTest : public TrafficTest {
  protected:
    void CalcTotals() {
        program_.program.CalcField("RIGE18", "TrRE18T");
        program_.program.CalcField("FLEXE18", "TrFE18T");
    }
};

TEST_F(AxleDataTest, ARowIsItsTypeLoadAndCountInThePeriodOfTheStore) {
    Set("TrPer", 1.0);
    Set("Life", 20.0);
    Row(3, "Tandem", 34.0, 120.0);
    CalcRow(3);
    const double passages = 120.0 * 20.0 * 365.25;
    const double rigid = passages * ReferenceRigidFactor(2, 34.0, 9.0, 2.5, 0.333);
    const double flexible = passages * ReferenceFlexibleFactor(2, 34.0, 5.0, 2.5);
    EXPECT_NEAR(Cell("RE18", 3), rigid, 1e-11 * rigid);
    EXPECT_NEAR(Cell("FE18", 3), flexible, 1e-11 * flexible);
    EXPECT_FALSE(store().FindCell("RE18", 2, 1)->IsFilled());
    EXPECT_FALSE(store().FindCell("FE18", 4, 1)->IsFilled());
}

TEST_F(AxleDataTest, ALoadOfZeroGivesZeroAndLeavesTheTotal) {
    Row(1, "Single", 18.0, 100.0);
    CalcRow(1);
    CalcTotals();
    Row(2, "Single", 0.0, 100.0);
    CalcRow(2);
    CalcTotals();
    EXPECT_TRUE(store().FindCell("RE18", 2, 1)->IsFilled());
    EXPECT_EQ(Cell("RE18", 2), 0.0);
    EXPECT_EQ(Cell("FE18", 2), 0.0);
    EXPECT_EQ(Get("RIGE18"), 100.0);
    EXPECT_EQ(Get("FLEXE18"), 100.0);
}

TEST_F(AxleDataTest, ATypeThatIsNoneGivesZero) {
    for (const char* type : {"single", "Quad", ""}) {
        store().SetVarDim("RE18", 1, 1, 7.0);
        store().SetVarDim("FE18", 1, 1, 7.0);
        Row(1, type, 18.0, 100.0);
        CalcRow(1);
        EXPECT_EQ(Cell("RE18", 1), 0.0) << type;
        EXPECT_EQ(Cell("FE18", 1), 0.0) << type;
    }
}

TEST_F(AxleDataTest, AFaultOfEitherEquationLeavesBothCells) {
    Row(1, "Single", 20.0, 100.0);
    CalcRow(1);
    const double rigid = Cell("RE18", 1);
    const double flexible = Cell("FE18", 1);
    ASSERT_GT(rigid, 100.0);
    for (const double pt : {4.2, 4.3, 4.5, 5.0}) {
        Set("PT", pt);
        CalcRow(1);
        EXPECT_EQ(Cell("RE18", 1), rigid) << pt;
        EXPECT_EQ(Cell("FE18", 1), flexible) << pt;
    }
    EXPECT_TRUE(program_.host.record.TakeTexts().empty()) << "without a word";
}

TEST_F(AxleDataTest, ThereAreFiftyRows) {
    Row(50, "Single", 18.0, 3.0);
    CalcRow(50);
    EXPECT_EQ(Cell("RE18", 50), 3.0);
    EXPECT_THROW(CalcRow(51), ProgramStop);
}

TEST_F(AxleDataTest, TheTotalsAreThePlainSumsInRowOrderToTheLastBit) {
    const char* const types[] = {"Single", "Tandem", "Tridem"};
    std::vector<double> rigid;
    std::vector<double> flexible;
    for (int row = 1; row <= 50; ++row) {
        Row(row, types[row % 3], 1.7 * row, 1e6 / (row * row));
        CalcRow(row);
        rigid.push_back(Cell("RE18", row));
        flexible.push_back(Cell("FE18", row));
    }
    double rigidSum = 0.0;
    double rigidBackwards = 0.0;
    double flexibleSum = 0.0;
    for (std::size_t i = 0; i < 50; ++i) {
        rigidSum += rigid[i];
        rigidBackwards += rigid[49 - i];
        flexibleSum += flexible[i];
    }
    ASSERT_NE(rigidSum, rigidBackwards) << "the order counts";
    CalcTotals();
    EXPECT_EQ(Get("RIGE18"), rigidSum);
    EXPECT_EQ(Get("FLEXE18"), flexibleSum);
}

TEST_F(AxleDataTest, WithoutAnyRowTheTotalsAreZero) {
    Set("RIGE18", 7.0);
    Set("FLEXE18", 7.0);
    CalcTotals();
    EXPECT_TRUE(store().FindCell("RIGE18", 1, 1)->IsFilled());
    EXPECT_EQ(Get("RIGE18"), 0.0);
    EXPECT_EQ(Get("FLEXE18"), 0.0);
}

TEST_F(AxleDataTest, ATotalBeyondADoubleLeavesItsTarget) {
    Set("RIGE18", 7.0);
    store().SetVarDim("RE18", 1, 1, 1.7e308);
    store().SetVarDim("RE18", 2, 1, 1.7e308);
    CalcTotals();
    EXPECT_EQ(Get("RIGE18"), 7.0);
}

TEST_F(AxleDataTest, TheTotalsGoToTheTargetNamed) {
    Row(1, "Single", 18.0, 100.0);
    CalcRow(1);
    program_.program.CalcField("RIGE18", "TrRE18T");
    EXPECT_EQ(Get("RIGE18"), 100.0);
    EXPECT_FALSE(store().FindCell("FLEXE18", 1, 1)->IsFilled());
    program_.program.CalcField("SN", "TrFE18T");
    EXPECT_EQ(Get("SN"), 100.0);
}

}  // namespace
}  // namespace kelvor::test
