#include <string>

#include "cash_flow.h"
#include "cost_fixture.h"

namespace kelvor::test {
namespace {

class ItemCostsTest : public CostTest {
  protected:
    ItemCostsTest() { Set({{"AnalysisPeriodA", 20.0}, {"AnalysisPeriodB", 30.0}, {"DiscountRate", 4.0}}); }
};

TEST_F(ItemCostsTest, AnInitialCostIsQuantityTimesUnitCostOfItsPavement) {
    SetRow(3, 1, {{"InitialQuantity", 1200.0}, {"InitialUnitCost", 2.5}});
    SetRow(3, 2, {{"InitialQuantity", 70.0}, {"InitialUnitCost", -3.0}});
    EXPECT_EQ(Calc("InitialItemCost", 3, 1), 3000.0);
    EXPECT_EQ(Calc("InitialItemCost", 3, 2), -210.0);
    EXPECT_EQ(Cell("InitialItemCost", 2, 1), std::nullopt);
}

TEST_F(ItemCostsTest, ABlankQuantityCostsNothing) {
    SetRow(1, 1, {{"InitialUnitCost", 2.5}, {"InitialItemCost", 7.0}});
    EXPECT_EQ(Calc("InitialItemCost", 1, 1), 0.0);
    SetRow(2, 1, {{"RehabUnitCost", 2.5}, {"RehabItemCost", 7.0}});
    EXPECT_EQ(Calc("RehabItemCost", 2, 1), 0.0);
}

TEST_F(ItemCostsTest, TheKeyOfTheItemAlwaysWritesTheCost) {
    SetRow(4, 2, {{"InitialQuantity", 10.0}, {"InitialUnitCost", 6.0}});
    SetText("InitialItem", 4, 2, "Base");
    program_.program.CalcCell("InitialItem", 4, 2, "InitialItem");
    EXPECT_EQ(Cell("InitialItemCost", 4, 2), 60.0);
    EXPECT_EQ(Text("InitialItem", 4, 2), "Base");
    EXPECT_EQ(Cell("InitialItem", 4, 2), std::nullopt);
    program_.program.CalcCell("RehabItemCost", 4, 2, "InitialItemCost");
    EXPECT_EQ(Cell("RehabItemCost", 4, 2), 60.0) << "the other key writes its target";
}

TEST_F(ItemCostsTest, AnnualMaintenanceCostsAsMuchInEachYearOfThePeriod) {
    for (const int pavement : {1, 2}) {
        SetRow(1, pavement, {{"RehabQuantity", 5.0}, {"RehabUnitCost", 40.0}});
        SetRow(2, pavement, {{"RehabQuantity", 5.0}, {"RehabUnitCost", 40.0}});
        EXPECT_EQ(Calc("RehabItemCost", 2, pavement), 200.0);
    }
    EXPECT_EQ(Calc("RehabItemCost", 1, 1), 4000.0);
    EXPECT_EQ(Calc("RehabItemCost", 1, 2), 6000.0);
}

TEST_F(ItemCostsTest, ThePresentWorthOfAnItemComesBackYearByYear) {
    for (const auto& [row, year] : {std::pair(2, 0), {3, 1}, {4, 15}, {5, 20}, {35, 90}}) {
        SetRow(row, 1, {{"RehabItemCost", 1000.0}, {"RehabYear", year}});
        EXPECT_NEAR(Calc("PWCostR", row, 1).value(), PresentWorth({{1000.0, year}}, 0.04), 1e-9) << year;
    }
    EXPECT_EQ(Cell("PWCostR", 2, 1), 1000.0) << "year 0 counts at face value";
}

TEST_F(ItemCostsTest, ThePresentWorthOfAnnualMaintenanceIsThatOfItsYears) {
    for (const auto& [pavement, years] : {std::pair(1, 20), {2, 30}}) {
        SetRow(1, pavement, {{"RehabQuantity", 5.0}, {"RehabUnitCost", 40.0}, {"RehabItemCost", 77.0}});
        EXPECT_NEAR(Calc("PWCostR", 1, pavement).value(), PresentWorth(EveryYear(200.0, years), 0.04), 1e-9);
    }
}

TEST_F(ItemCostsTest, AtARateOfZeroItemsKeepTheirFaceValueAndMaintenanceItsWorthOfBefore) {
    SetRow(1, 1, {{"RehabQuantity", 5.0}, {"RehabUnitCost", 40.0}, {"PWCostR", 7.0}});
    SetRow(2, 1, {{"RehabItemCost", 1000.0}, {"RehabYear", 15.0}});
    Set({{"DiscountRate", 0.0}});
    EXPECT_EQ(Calc("PWCostR", 1, 1), 7.0);
    EXPECT_EQ(Calc("PWCostR", 2, 1), 1000.0);
    EXPECT_TRUE(program_.host.record.TakeTexts().empty());
}

TEST_F(ItemCostsTest, MaintenanceIsThatOfTheRowAndThePavementInHand) {
    for (const auto& [pavement, years] : {std::pair(1, 20.0), {2, 30.0}}) {
        WorkIn(7, pavement);
        SetRow(7, pavement, {{"MaintQuantity", 4.0}, {"MaintUnitCost", 25.0}, {"MaintYear", 10.0}});
        CalcInHand("MaintItemCost");
        EXPECT_EQ(Cell("MaintItemCost", 7, pavement), 100.0 * years);
        CalcInHand("PWCostM");
        EXPECT_NEAR(Cell("PWCostM", 7, pavement).value(), PresentWorth({{100.0 * years, 10}}, 0.04), 1e-9);
    }
    EXPECT_EQ(Cell("MaintItemCost", 1, 1), std::nullopt);
}

TEST_F(ItemCostsTest, WithoutAGridInHandMaintenanceIsThatOfRowOne) {
    SetRow(1, 1, {{"MaintQuantity", 4.0}, {"MaintUnitCost", 25.0}});
    CalcInHand("MaintItemCost");
    CalcInHand("PWCostM");
    EXPECT_EQ(Cell("MaintItemCost", 1, 1), 2000.0);
    EXPECT_EQ(Cell("PWCostM", 1, 1), 2000.0);
}

TEST_F(ItemCostsTest, AFaultLeavesTheCell) {
    Set({{"DiscountRate", -100.0}});
    SetRow(2, 1, {{"RehabItemCost", 1000.0}, {"RehabYear", 15.0}, {"PWCostR", 7.0}});
    EXPECT_EQ(Calc("PWCostR", 2, 1), 7.0);
    SetRow(2, 1, {{"InitialQuantity", 1e200}, {"InitialUnitCost", 1e200}, {"InitialItemCost", 7.0}});
    EXPECT_EQ(Calc("InitialItemCost", 2, 1), 7.0);
}

}  // namespace
}  // namespace kelvor::test
