#include <cmath>

#include "traffic_fixture.h"

namespace kelvor::test {
namespace {

class TrafficFactorsTest : public TrafficTest {
  protected:
    TrafficFactorsTest() {
        Set("TrInADTT", 500.0);
        Set("TrInADT", 8000.0);
        Set("TrInPerTruck", 10.0);
        Set("TrInFESAL", 0.5);
        Set("TrInRESAL", 0.75);
    }

    void ChooseTrucks(bool trucks) { program_.program.state().formValues.trafficInTrucks = trucks; }

    void CalcTotals() {
        program_.program.CalcField("FLEXE18", "TrFE18tt");
        program_.program.CalcField("RIGE18", "TrRE18tt");
    }

    void ExpectTotals(double flexible, double rigid) {
        CalcTotals();
        EXPECT_DOUBLE_EQ(Get("FLEXE18"), flexible);
        EXPECT_DOUBLE_EQ(Get("RIGE18"), rigid);
    }
};

TEST_F(TrafficFactorsTest, TrucksADayAreTheFirstChoice) {
    ExpectTotals(500 * 0.5 * 365.25, 500 * 0.75 * 365.25);
}

TEST_F(TrafficFactorsTest, OfAllVehiclesTheShareOfTrucksCounts) {
    ChooseTrucks(false);
    ExpectTotals(800 * 0.5 * 365.25, 800 * 0.75 * 365.25);
    ChooseTrucks(true);
    ExpectTotals(500 * 0.5 * 365.25, 500 * 0.75 * 365.25);
}

TEST_F(TrafficFactorsTest, AllVehiclesWithoutAShareOfTrucksAreNoTraffic) {
    store().SetCell("TrInPerTruck", 1, 1, {});
    ChooseTrucks(false);
    ExpectTotals(0.0, 0.0);
    EXPECT_TRUE(store().FindCell("FLEXE18", 1, 1)->IsFilled());
}

TEST_F(TrafficFactorsTest, WithoutGrowthTheLifeIsAFactor) {
    Set("Life", 25.0);
    ExpectTotals(500 * 0.5 * 365.25 * 25, 500 * 0.75 * 365.25 * 25);
}

TEST_F(TrafficFactorsTest, GrowthIsCompoundedYearByYear) {
    Set("Life", 20.0);
    Set("GrowthRate", 4.0);
    double sum = 0.0;
    for (int year = 0; year < 20; ++year) sum += std::pow(1.04, year);
    EXPECT_NEAR(sum, 29.78, 0.005);  // 1993 AASHTO Guide, Table D.20
    CalcTotals();
    EXPECT_NEAR(Get("FLEXE18"), 500 * 0.5 * 365.25 * sum, 1e-5);
    EXPECT_NEAR(Get("RIGE18"), 500 * 0.75 * 365.25 * sum, 1e-5);
}

TEST_F(TrafficFactorsTest, NoLifeIsNoTrafficEvenWithGrowth) {
    Set("Life", 0.0);
    Set("GrowthRate", 4.0);
    ExpectTotals(0.0, 0.0);
}

TEST_F(TrafficFactorsTest, OnlyTotalTrafficIsDistributed) {
    const double flexible = 500 * 0.5 * 365.25;
    const double rigid = 500 * 0.75 * 365.25;
    Set("TRDIRDIS", 50.0);
    Set("TRLANDIS", 80.0);
    Set("TRWAY", 2.0);
    ExpectTotals(flexible, rigid);
    Set("TRFACTYPE", 2.0);
    ExpectTotals(flexible * 0.4, rigid * 0.4);
    Set("TRWAY", 1.0);
    ExpectTotals(flexible * 0.8, rigid * 0.8);
}

TEST_F(TrafficFactorsTest, ThePeriodAndThePavementHaveNoPart) {
    for (const double period : {1.0, 2.0, 3.0}) {
        Set("TrPer", period);
        ExpectTotals(500 * 0.5 * 365.25, 500 * 0.75 * 365.25);
    }
    Set("PT", 4.5);
    Set("TrafficDEPTH", 0.0);
    Set("TrafficSN", 0.0);
    Set("TrInADTT", 600.0);
    ExpectTotals(600 * 0.5 * 365.25, 600 * 0.75 * 365.25);
}

TEST_F(TrafficFactorsTest, AGrowthThatIsNoneAsAFractionIsAFault) {
    ExpectTotals(500 * 0.5 * 365.25, 500 * 0.75 * 365.25);
    Set("GrowthRate", 1e-322);  // not 0, and its hundredth part is
    Set("Life", 20.0);
    ExpectTotals(500 * 0.5 * 365.25, 500 * 0.75 * 365.25);
}

TEST_F(TrafficFactorsTest, AFaultLeavesTheTarget) {
    ExpectTotals(500 * 0.5 * 365.25, 500 * 0.75 * 365.25);
    Set("GrowthRate", -100.0);
    Set("Life", -1.0);
    ExpectTotals(500 * 0.5 * 365.25, 500 * 0.75 * 365.25);
    EXPECT_TRUE(program_.host.record.TakeTexts().empty());
}

}  // namespace
}  // namespace kelvor::test
