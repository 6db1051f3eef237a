#include "traffic/calc/vehicle_data.h"

#include <map>

#include "reference_factors.h"
#include "traffic_fixture.h"

namespace kelvor::test {
namespace {

/// The count of the vehicle to which an axle belongs.
const std::map<int, std::string> kCountOfAxle = {
    {51, "NA53"}, {52, "NA53"}, {53, "NA53"}, {54, "NA56"}, {55, "NA56"}, {56, "NA56"}, {57, "NA59"},
    {58, "NA59"}, {59, "NA59"}, {60, "NA62"}, {61, "NA62"}, {62, "NA62"}, {63, "NA65"}, {64, "NA65"},
    {65, "NA65"}, {66, "NA70"}, {67, "NA70"}, {68, "NA70"}, {69, "NA70"}, {70, "NA70"},
};

class VehicleDataTest : public TrafficTest {
  protected:
    void Axle(int axle, double type, double load) {
        Set("AT" + std::to_string(axle), type);
        Set("AW" + std::to_string(axle), load);
    }

    void CalcTotals() {
        program_.program.CalcField("RIGE18", "TrRE18Tv");
        program_.program.CalcField("FLEXE18", "TrFE18Tv");
    }

    void ExpectTotals(double expected) {
        CalcTotals();
        EXPECT_DOUBLE_EQ(Get("RIGE18"), expected);
        EXPECT_DOUBLE_EQ(Get("FLEXE18"), expected);
    }
};

TEST_F(VehicleDataTest, EachAxleCountsAsOftenAsItsVehicle) {
    const std::map<std::string, double> counts = {{"NA53", 2}, {"NA56", 3},  {"NA59", 5},
                                                  {"NA62", 7}, {"NA65", 11}, {"NA70", 13}};
    for (const auto& [name, count] : counts) Set(name, count);
    ASSERT_EQ(kCountOfAxle.size(), 20U);
    double all = 0.0;
    for (const auto& [axle, count] : kCountOfAxle) {
        Axle(axle, 1, 18.0);
        ExpectTotals(counts.at(count));
        Axle(axle, 0, 0.0);
        all += counts.at(count);
    }
    for (const auto& entry : kCountOfAxle) Axle(entry.first, 1, 18.0);
    EXPECT_EQ(all, 3 * (2 + 3 + 5 + 7 + 11) + 5 * 13);
    ExpectTotals(all);
}

TEST_F(VehicleDataTest, AVehicleWithoutACountAddsNothingWhateverItsLoads) {
    for (const int axle : {51, 52, 53}) Axle(axle, 1, 40.0);
    Axle(54, 1, 18.0);
    Set("NA56", 4.0);
    ExpectTotals(4.0);
}

TEST_F(VehicleDataTest, AVehicleMayHaveOneAxle) {
    Axle(51, 1, 18.0);
    Set("NA53", 10.0);
    ExpectTotals(10.0);
}

TEST_F(VehicleDataTest, AnAxleWithoutATypeOrALoadAddsNothing) {
    Set("NA53", 10.0);
    Axle(51, 0, 18.0);
    Axle(52, 1, 0.0);
    ExpectTotals(0.0);
    EXPECT_TRUE(store().FindCell("RIGE18", 1, 1)->IsFilled());
}

TEST_F(VehicleDataTest, TheSixthVehicleHasFiveAxles) {
    for (int axle = 66; axle <= 70; ++axle) Axle(axle, 1, 18.0);
    Set("NA70", 3.0);
    ExpectTotals(15.0);
}

TEST_F(VehicleDataTest, ThePeriodHoldsForEveryAxle) {
    for (const auto& entry : kCountOfAxle) Axle(entry.first, 1, 18.0);
    for (const auto& entry : kCountOfAxle) Set(entry.second, 2.0);
    Set("TrPer", 1.0);
    ExpectTotals(20 * 2.0 * 365.25);
    Set("TrPer", 2.0);
    ExpectTotals(20 * 2.0 * 12.0);
    Set("TrPer", 3.0);
    ExpectTotals(20 * 2.0);
}

TEST_F(VehicleDataTest, ATractorAndItsSemitrailerAreWorthTheSumOfTheirAxles) {
    Axle(63, 1, 12.0);
    Axle(64, 2, 34.0);
    Axle(65, 2, 34.0);
    Set("NA65", 100.0);
    CalcTotals();
    const double rigid =
        ReferenceRigidFactor(1, 12.0, 9.0, 2.5, 0.333) + 2.0 * ReferenceRigidFactor(2, 34.0, 9.0, 2.5, 0.333);
    const double flexible =
        ReferenceFlexibleFactor(1, 12.0, 5.0, 2.5) + 2.0 * ReferenceFlexibleFactor(2, 34.0, 5.0, 2.5);
    EXPECT_NEAR(Get("RIGE18"), 100.0 * rigid, 1e-9);
    EXPECT_NEAR(Get("FLEXE18"), 100.0 * flexible, 1e-9);
}

TEST_F(VehicleDataTest, AFaultOfOneAxleLeavesBothTotals) {
    Axle(51, 1, 18.0);
    Set("NA53", 10.0);
    ExpectTotals(10.0);
    Axle(70, 1, -5.0);
    Set("NA70", 1.0);
    Set("NA53", 20.0);
    ExpectTotals(10.0);
    Axle(70, 0, 0.0);
    Set("PT", 4.3);
    ExpectTotals(10.0);
    EXPECT_TRUE(program_.host.record.TakeTexts().empty());
}

TEST_F(VehicleDataTest, TheTotalsBeginAtZero) {
    Real flexible = 5.0;
    Real rigid = 6.0;
    VehicleEsal(store(), flexible, rigid);
    EXPECT_EQ(flexible, 0.0);
    EXPECT_EQ(rigid, 0.0);
}

}  // namespace
}  // namespace kelvor::test
