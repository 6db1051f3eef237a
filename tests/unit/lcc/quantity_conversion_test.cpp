#include "lcc/calc/quantity_conversion.h"

#include <string>

#include "cash_flow.h"
#include "cost_fixture.h"

namespace kelvor::test {
namespace {

class QuantityConversionTest : public CostTest {
  protected:
    /// A row of a grid as a user types it.
    void Initial(int row, int pavement, const std::string& unit, const std::string& quantity,
                 double unitCost) {
        SetText("InitialUnit", row, pavement, unit);
        program_.units().SetDisplayValue("InitialQuantity", row, pavement, quantity);
        SetRow(row, pavement, {{"InitialUnitCost", unitCost}});
    }

    void Rehab(int row, int pavement, const std::string& unit, const std::string& quantity, double unitCost) {
        SetText("RehabUnit", row, pavement, unit);
        program_.units().SetDisplayValue("RehabQuantity", row, pavement, quantity);
        SetRow(row, pavement, {{"RehabUnitCost", unitCost}});
    }

    /// A switch of the unit system while the cost grids are in hand.
    void Switch(bool metric) {
        program_.units().SetMetric(metric);
        CalcContext context = Context();
        ConvertInitialQuantities(context);
        ConvertRehabQuantities(context);
    }
};

TEST_F(QuantityConversionTest, QuantitiesAndUnitsGoOverAndUnitCostsStay) {
    Initial(1, 1, "sq yd", "1,000", 4.0);
    Initial(25, 2, "ton (e)", "200", 30.0);
    Switch(true);
    EXPECT_DOUBLE_EQ(Cell("InitialQuantity", 1, 1).value(), 836.12736);
    EXPECT_EQ(Text("InitialUnit", 1, 1), "sq m");
    EXPECT_DOUBLE_EQ(Cell("InitialItemCost", 1, 1).value(), 836.12736 * 4.0);
    EXPECT_DOUBLE_EQ(Cell("InitialQuantity", 25, 2).value(), 181.436948);
    EXPECT_EQ(Text("InitialUnit", 25, 2), "ton (m)");
    EXPECT_DOUBLE_EQ(Cell("ItemTotal2", 1, 1).value(), 836.12736 * 4.0);
    EXPECT_DOUBLE_EQ(Cell("ItemTotal2", 1, 2).value(), 181.436948 * 30.0);
    Switch(false);
    EXPECT_EQ(Cell("InitialQuantity", 1, 1), 1000.0);
    EXPECT_EQ(Text("InitialUnit", 1, 1), "sq yd");
    EXPECT_EQ(Cell("ItemTotal2", 1, 1), 4000.0);
    EXPECT_EQ(Cell("ItemTotal2", 1, 2), 6000.0);
}

TEST_F(QuantityConversionTest, SwitchesAndBackNeverChangeTheTextAndTheNumberNotAfterTheFirst) {
    Switch(true);
    Initial(1, 1, "sq m", "777.7", 4.0);
    const std::string text = Text("InitialQuantity", 1, 1).value();
    EXPECT_NEAR(std::stod(text), 777.7 / 0.83612736, 1e-9);
    EXPECT_EQ(Cell("InitialQuantity", 1, 1), 777.7);
    Switch(false);
    const double english = Cell("InitialQuantity", 1, 1).value();
    Switch(true);
    const double metric = Cell("InitialQuantity", 1, 1).value();
    EXPECT_NEAR(metric, 777.7, 1e-9);
    for (int i = 0; i < 20; ++i) {
        Switch(false);
        EXPECT_EQ(Cell("InitialQuantity", 1, 1), english);
        EXPECT_EQ(Text("InitialQuantity", 1, 1), text);
        Switch(true);
        EXPECT_EQ(Cell("InitialQuantity", 1, 1), metric);
        EXPECT_EQ(Text("InitialQuantity", 1, 1), text);
    }
}

TEST_F(QuantityConversionTest, ConvertingTwiceIsConvertingOnce) {
    Initial(1, 1, "In feet", "50", 4.0);
    Switch(true);
    Switch(true);
    EXPECT_EQ(Cell("InitialQuantity", 1, 1), 1524.0);
    EXPECT_EQ(Text("InitialUnit", 1, 1), "In cm");
}

TEST_F(QuantityConversionTest, AUnitWithoutAFactorKeepsItsQuantityAndItsName) {
    Initial(1, 1, "each", "12", 100.0);
    Initial(2, 1, "18 kip ESAL's", "12", 100.0);  // a factor of 1
    SetRow(1, 1, {{"InitialQuantity", 11.0}});
    SetRow(2, 1, {{"InitialQuantity", 11.0}});
    Switch(true);
    EXPECT_EQ(Cell("InitialQuantity", 1, 1), 11.0) << "left alone";
    EXPECT_EQ(Text("InitialUnit", 1, 1), "each");
    EXPECT_EQ(Cell("InitialQuantity", 2, 1), 11.0);
    Switch(false);
    EXPECT_EQ(Cell("InitialQuantity", 1, 1), 12.0) << "from its text";
}

TEST_F(QuantityConversionTest, RowsBelowTheTwentyFifthAreNotConverted) {
    Initial(26, 1, "sq yd", "1000", 4.0);
    Rehab(26, 1, "sq yd", "1000", 4.0);
    Switch(true);
    for (const auto& [quantity, unit] :
         {std::pair("InitialQuantity", "InitialUnit"), {"RehabQuantity", "RehabUnit"}}) {
        EXPECT_EQ(Cell(quantity, 26, 1), 1000.0);
        EXPECT_EQ(Text(unit, 26, 1), "sq yd");
    }
    EXPECT_EQ(program_.units().GetQuantityDisplay("InitialQuantity", 26, 1), "836.1");
}

TEST_F(QuantityConversionTest, AQuantityWithoutATextIsEmptiedAndOneThatIsNoNumberStays) {
    SetRow(1, 1, {{"InitialQuantity", 5.0}, {"InitialItemCost", 7.0}});
    SetText("InitialUnit", 1, 1, "sq yd");
    store().SetCell("InitialQuantity", 2, 1, {5.0, "some"});
    SetText("InitialUnit", 2, 1, "sq yd");
    Switch(true);
    EXPECT_EQ(Cell("InitialQuantity", 1, 1), std::nullopt);
    EXPECT_EQ(Cell("InitialItemCost", 1, 1), 0.0);
    EXPECT_EQ(Cell("InitialQuantity", 2, 1), 5.0);
    EXPECT_EQ(Text("InitialQuantity", 2, 1), "some");
    EXPECT_EQ(Text("InitialUnit", 2, 1), "sq m");
}

TEST_F(QuantityConversionTest, ARowWithoutAQuantityCosts0) {
    Set({{"DiscountRate", 4.0}, {"AnalysisPeriodA", 20.0}, {"AnalysisPeriodB", 20.0}});
    Initial(2, 1, "sq yd", "10", 4.0);
    Switch(true);
    for (const int row : {1, 3, 25}) {
        for (const int pavement : {1, 2}) {
            SCOPED_TRACE(testing::Message() << row << " of " << pavement);
            EXPECT_EQ(Cell("InitialItemCost", row, pavement), 0.0);
            EXPECT_EQ(Cell("RehabItemCost", row, pavement), 0.0);
            EXPECT_EQ(Cell("PWCostR", row, pavement), 0.0);
            EXPECT_EQ(Cell("InitialQuantity", row, pavement), std::nullopt);
        }
    }
    for (const char* column : {"InitialItemCost", "RehabItemCost", "PWCostR"})
        EXPECT_EQ(Cell(column, 26, 1), std::nullopt) << column;
    EXPECT_EQ(Cell("ItemTotal2", 1, 2), 0.0);
    EXPECT_EQ(Cell("ItemTotal4", 1, 1), 0.0);
}

TEST_F(QuantityConversionTest, RehabilitationFollowsWithItsPresentWorth) {
    Set({{"DiscountRate", 4.0}, {"AnalysisPeriodA", 20.0}});
    Rehab(1, 1, "sq yd", "100", 2.0);
    Rehab(2, 1, "sq yd", "1000", 2.0);
    SetRow(2, 1, {{"RehabYear", 10.0}});
    Rehab(3, 2, "In feet", "10", 2.0);
    Switch(true);
    const double maintenance = 83.612736 * 2.0;
    const double item = 836.12736 * 2.0;
    EXPECT_DOUBLE_EQ(Cell("RehabItemCost", 1, 1).value(), maintenance * 20.0);
    EXPECT_DOUBLE_EQ(Cell("RehabItemCost", 2, 1).value(), item);
    EXPECT_EQ(Cell("RehabItemCost", 3, 2), 609.6);
    EXPECT_DOUBLE_EQ(Cell("ItemTotal4", 1, 1).value(), maintenance * 20.0 + item);
    EXPECT_EQ(Cell("ItemTotal4", 1, 2), 609.6);
    std::vector<Expense> flow = EveryYear(maintenance, 20);
    flow.push_back({item, 10});
    EXPECT_NEAR(Cell("PrWorthTotal4", 1, 1).value(), PresentWorth(flow, 0.04), 1e-9);
    EXPECT_EQ(Cell("PrWorthTotal4", 1, 2), 609.6);
}

TEST_F(QuantityConversionTest, ACostThatHasNoValueIsPassedOver) {
    Rehab(1, 1, "sq yd", "100", 2.0);  // at a rate of 0 a series has no worth
    SetRow(1, 1, {{"PWCostR", 7.0}});
    Rehab(2, 1, "sq yd", "1000", 2.0);
    Switch(true);
    EXPECT_EQ(Cell("PWCostR", 1, 1), 7.0);
    EXPECT_DOUBLE_EQ(Cell("PWCostR", 2, 1).value(), 836.12736 * 2.0);
    Initial(1, 1, "In cm", "1e307", 1.0);
    EXPECT_EQ(Cell("InitialQuantity", 1, 1), 1e307);
    store().SetCell("InitialQuantity", 1, 1, {5.0, "1e308"});
    SetText("InitialUnit", 1, 1, "In feet");
    Switch(true);
    EXPECT_EQ(Cell("InitialQuantity", 1, 1), 5.0) << "beyond a double in centimetres";
}

}  // namespace
}  // namespace kelvor::test
