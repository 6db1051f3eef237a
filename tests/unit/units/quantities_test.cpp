#include <gtest/gtest.h>

#include <string>

#include "support/test_host.h"
#include "units/units.h"

namespace kelvor::test {
namespace {

class QuantitiesTest : public testing::Test {
  protected:
    [[nodiscard]] CellValue Cell(const std::string& name) { return *store_.FindCell(name, 2, 1); }
    void Unit(const std::string& unit) { store_.SetCell("InitialUnit", 2, 1, {std::nullopt, unit}); }
    void Type(const std::string& quantity) { units_.SetDisplayValue("InitialQuantity", 2, 1, quantity); }

    TestProgram program_;
    ProjectStore& store_ = program_.store();
    Units& units_ = program_.units();
};

TEST_F(QuantitiesTest, UnitsHaveTheirNameOfTheActiveSystem) {
    EXPECT_EQ(units_.ActiveUnit("sq m"), "sq yd");
    EXPECT_EQ(units_.ActiveUnit("sq yd"), "sq yd");
    EXPECT_EQ(units_.ActiveUnit("each one"), "each one");
    EXPECT_EQ(units_.EnglishUnit("sq m"), "sq m");
    units_.SetMetric(true);
    EXPECT_EQ(units_.ActiveUnit("sq yd"), "sq m");
    EXPECT_EQ(units_.ActiveUnit("sq m"), "sq m");
    EXPECT_EQ(units_.ActiveUnit("each one"), "each one");
    EXPECT_EQ(units_.EnglishUnit("sq m"), "sq yd");
    EXPECT_EQ(units_.EnglishUnit("in"), "in");
    EXPECT_EQ(units_.EnglishUnit("mm"), "in") << "the first pair too";
}

TEST_F(QuantitiesTest, InEnglishANumberIsTheOneTyped) {
    Unit("sq yd");
    Type("5,250");
    EXPECT_EQ(Cell("InitialQuantity"), (CellValue{5250.0, "5,250"}));
}

TEST_F(QuantitiesTest, InMetricTheTextIsTheEnglishQuantity) {
    units_.SetMetric(true);
    Unit("In cm");
    Type("3,048");
    EXPECT_EQ(Cell("InitialQuantity"), (CellValue{3048.0, "100"}));
    store_.SetCell("RehabUnit", 2, 1, {std::nullopt, "sq m"});
    units_.SetDisplayNumber("rehabquantity", 2, 1, 100.0);
    EXPECT_EQ(Cell("RehabQuantity"), (CellValue{100.0, "119.599004630108"}));
}

TEST_F(QuantitiesTest, AUnitWithoutAPartnerHasTheSameQuantityInBoth) {
    units_.SetMetric(true);
    Type("12");
    EXPECT_EQ(Cell("InitialQuantity"), (CellValue{12.0, "12"})) << "no unit yet";
    Unit("each one");
    Type("13");
    EXPECT_EQ(Cell("InitialQuantity"), (CellValue{13.0, "13"}));
}

TEST_F(QuantitiesTest, AnEmptyTextEmptiesAndOneThatIsNoNumberStandsBesideTheNumber) {
    Unit("sq yd");
    Type("12");
    Type("a dozen");
    EXPECT_EQ(Cell("InitialQuantity"), (CellValue{12.0, "a dozen"}));
    Type("");
    EXPECT_EQ(Cell("InitialQuantity"), CellValue{});
    units_.SetMetric(true);
    Type("a dozen");
    EXPECT_EQ(Cell("InitialQuantity"), CellValue{})
        << "in metric units a text that is no number is passed over";
    units_.SetDisplayValue("InitialQuantity", 36, 1, "5");  // there is no such row
}

TEST_F(QuantitiesTest, AQuantityThatNoDoubleHoldsInEnglishIsPassedOver) {
    units_.SetMetric(true);
    Unit("sq m");
    Type("12");
    const CellValue before = Cell("InitialQuantity");
    Type("1.7e308");  // some 2e308 square yards
    EXPECT_EQ(Cell("InitialQuantity"), before);
    EXPECT_THROW(units_.QuantityCell(1.7e308, "1.7e308", "sq m"), ArithmeticFault);
}

TEST_F(QuantitiesTest, OtherColumnsOfTheGridsAreAsAnyVariable) {
    units_.SetMetric(true);
    store_.SetCell("MaintUnit", 2, 1, {std::nullopt, "In cm"});
    units_.SetDisplayValue("MaintQuantity", 2, 1, "3,048");
    EXPECT_EQ(Cell("MaintQuantity"), (CellValue{3048.0, "3,048"}));
}

TEST_F(QuantitiesTest, AQuantityIsShownAsItIsStoredInTheActiveSystem) {
    Unit("sq yd");
    Type("1000");
    EXPECT_EQ(units_.GetQuantityDisplay("InitialQuantity", 2, 1), "1,000.0");
    units_.SetMetric(true);
    EXPECT_EQ(units_.GetQuantityDisplay("InitialQuantity", 2, 1), "836.1") << "its unit is still English";
    Unit("sq m");
    EXPECT_EQ(units_.GetQuantityDisplay("InitialQuantity", 2, 1), "1,000.0");
    Type("");
    EXPECT_EQ(units_.GetQuantityDisplay("InitialQuantity", 2, 1), "");
    EXPECT_EQ(units_.GetQuantityDisplay("InitialQuantity", 36, 1), "");
    store_.SetVar("DEPTH", 10.0);
    EXPECT_EQ(units_.GetQuantityDisplay("DEPTH", 1, 1), "254.0");
}

}  // namespace
}  // namespace kelvor::test
