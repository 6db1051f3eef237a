// The staging of traffic and of costs.

#include <cmath>

#include "staging_fixture.h"

namespace kelvor::test {
namespace {

// --- Traffic ----------------------------------------------------------------------------------------

TEST_F(StagingTest, ThePeriodIsAWord) {
    const auto period = [&](double code) {
        Set("TrPer", code);
        return Text(Stage(StageTrafficCommon), "TrFa", "TrPer");
    };
    EXPECT_EQ(period(1), "Day");
    EXPECT_EQ(period(2), "Month");
    EXPECT_EQ(period(3), "Year");
    EXPECT_EQ(period(0), "Day");
    EXPECT_EQ(period(4), "Day");
}

TEST_F(StagingTest, TrafficOfTheDesignLaneHasNoDistribution) {
    Set("TRLANDIS", 90);
    Set("TRDIRDIS", 50);
    Set("TRWAY", 2);
    for (const double type : {0.0, 1.0}) {
        Set("TRFACTYPE", type);
        const StagedTables tables = Stage(StageTrafficCommon);
        EXPECT_EQ(Text(tables, "TrFa", "trFacType"), "Design Lane");
        EXPECT_EQ(Text(tables, "TrFa", "TRLANDIS"), "");
        EXPECT_EQ(Text(tables, "TrFa", "TRDIRDIS"), "");
    }
}

TEST_F(StagingTest, TotalTrafficOfBothWaysHasBothDistributions) {
    Set("TRFACTYPE", 2);
    Set("TRWAY", 2);
    Set("TRLANDIS", 90);
    Set("TRDIRDIS", 52.55);  // shown with one decimal
    const StagedTables tables = Stage(StageTrafficCommon);
    EXPECT_EQ(Text(tables, "TrFa", "trFacType"), "Total Traffic   2-way");
    EXPECT_EQ(Text(tables, "TrFa", "TRLANDIS"), "Design Lane Distribution 90 percent");
    EXPECT_EQ(Text(tables, "TrFa", "TRDIRDIS"), "Directional Distribution    52.6 percent");
}

TEST_F(StagingTest, TotalTrafficOfOneWayHasTheLanesAlone) {
    Set("TRFACTYPE", 2);
    Set("TRWAY", 1);
    Set("TRDIRDIS", 50);
    const StagedTables tables = Stage(StageTrafficCommon);
    EXPECT_EQ(Text(tables, "TrFa", "trFacType"), "Total Traffic   1-way");
    EXPECT_EQ(Text(tables, "TrFa", "TRLANDIS"), "Design Lane Distribution 0 percent");
    EXPECT_EQ(Text(tables, "TrFa", "TRDIRDIS"), "");
}

TEST_F(StagingTest, TheAxlesOfVehiclesHaveTheirNames) {
    Set("AT51", 1);
    Set("AT52", 2);
    Set("AT53", 3);
    Set("AT70", 4);
    Set("AW51", 12.34);
    const StagedTables tables = Stage(StageVehicleTraffic);
    EXPECT_EQ(Text(tables, "TrVe", "AT51"), "Single");
    EXPECT_EQ(Text(tables, "TrVe", "AT52"), "Tandem");
    EXPECT_EQ(Text(tables, "TrVe", "AT53"), "Tridem");
    EXPECT_EQ(Text(tables, "TrVe", "AT54"), "");
    EXPECT_EQ(Text(tables, "TrVe", "AT70"), "");
    EXPECT_EQ(Number(tables, "TrVe", "AW51"), 12.3);
}

class AxleStagingTest : public StagingTest {
  protected:
    void SetAxle(int row, const std::string& type, double weight) {
        SetText("AxleType", type, row);
        SetCell("AxleWeight", row, 1, weight);
        SetCell("NumOfAxles", row, 1, 10.0 * row);
    }

    void SetAxles(int count) {
        for (int row = 1; row <= count; ++row) SetAxle(row, "Single", 10.0 + row);
    }

    std::size_t StagedRows() { return Stage(StageAxleTraffic).Find("TrAx")->rows.size(); }
};

TEST_F(AxleStagingTest, RowsHaveTheirOwnNumbersAndTheTotals) {
    SetAxle(1, "Tandem", 34.06);
    SetAxle(2, "Single", 18.0);
    SetCell("RE18", 1, 1, 1234.4);
    Set("RIGE18", 5000000);
    Set("FLEXE18", 3000000);
    const StagedTables tables = Stage(StageAxleTraffic);
    ASSERT_EQ(tables.Find("TrAx")->rows.size(), 2U);
    EXPECT_EQ(Text(tables, "TrAx", "AxleType", 1), "Tandem");
    EXPECT_EQ(Number(tables, "TrAx", "AxleWeight", 1), 34.1);
    EXPECT_EQ(Number(tables, "TrAx", "RE18", 1), 1234.0);
    EXPECT_EQ(Number(tables, "TrAx", "NumOfAxles", 2), 20.0);
    for (const std::size_t row : {1U, 2U}) {
        EXPECT_EQ(Number(tables, "TrAx", "RIGE18", row), 5000000.0);
        EXPECT_EQ(Number(tables, "TrAx", "FLEXE18", row), 3000000.0);
    }
}

TEST_F(AxleStagingTest, ARowWithoutALoadEndsTheList) {
    SetAxles(6);
    SetAxle(3, "Single", 0.0);
    EXPECT_EQ(StagedRows(), 2U);
}

TEST_F(AxleStagingTest, ARowWithoutATypeEndsTheList) {
    SetAxles(6);
    SetText("AxleType", "", 5);
    EXPECT_EQ(StagedRows(), 4U);
}

TEST_F(AxleStagingTest, TheFiftiethAxleIsLeftOut) {
    SetAxles(50);
    EXPECT_EQ(StagedRows(), 49U);
}

TEST_F(AxleStagingTest, EachRunBeginsWithAnEmptyTable) {
    SetAxles(5);
    EXPECT_EQ(StagedRows(), 5U);
    SetAxle(1, "", 0.0);
    EXPECT_EQ(StagedRows(), 0U);
}

// --- Costs ------------------------------------------------------------------------------------------

TEST_F(StagingTest, TheInitialCostIsTheRawSumOfAPavement) {
    Run().ChooseUnits(true);
    SetText("PavDesc", "Concrete", 1, 2);
    SetCell("InitialItemCost", 1, 2, 1000.123456);
    SetCell("InitialItemCost", 35, 2, 0.000001);
    SetCell("InitialItemCost", 1, 1, 7.0);
    const StagedTables tables = Stage(StageCostAnalysis);
    ASSERT_EQ(tables.Find("PavementB")->rows.size(), 11U);
    EXPECT_DOUBLE_EQ(Number(tables, "PavementB", "MAintItemCost", 1), 1000.123457);
    EXPECT_EQ(Number(tables, "PavementA", "MAintItemCost", 1), 7.0);
    EXPECT_EQ(Text(tables, "PavementB", "MaintItem", 1), "Initial Cost");
    EXPECT_EQ(Text(tables, "PavementB", "MaintYear", 1), "0");
    EXPECT_EQ(Number(tables, "PavementB", "MaintQuantity", 1), 0.0);
    EXPECT_EQ(Number(tables, "PavementB", "PWCostM", 1), 0.0);
    EXPECT_EQ(Number(tables, "PavementB", "Number", 1), 0.0);
    for (const std::size_t row : {1U, 2U, 11U})
        EXPECT_EQ(Text(tables, "PavementB", "PavDesc", row), "Concrete");
}

TEST_F(StagingTest, TenRowsOfRehabilitationFollow) {
    for (int row = 1; row <= 11; ++row) {
        SetText("RehabItem", "item " + std::to_string(row), row, 1);
        SetCell("RehabYear", row, 1, 2.0 * row);
        SetCell("RehabQuantity", row, 1, row + 0.04);
        SetCell("RehabUnitCost", row, 1, -1.256);
        SetCell("RehabItemCost", row, 1, 100.0 * row);
        SetCell("PWCostR", row, 1, 50.0 * row);
    }
    SetText("RehabYear", "N/A", 1, 1);
    const StagedTables tables = Stage(StageCostAnalysis);
    ASSERT_EQ(tables.Find("PavementA")->rows.size(), 11U);
    EXPECT_EQ(Text(tables, "PavementA", "MaintYear", 2), "N/A");
    EXPECT_EQ(Text(tables, "PavementA", "MaintYear", 3), "4");
    EXPECT_EQ(Text(tables, "PavementA", "MaintItem", 11), "item 10");
    EXPECT_EQ(Number(tables, "PavementA", "Number", 11), 10.0);
    EXPECT_EQ(Number(tables, "PavementA", "MaintQuantity", 3), 2.0);
    EXPECT_EQ(Number(tables, "PavementA", "MaintUnitCost", 3), -1.26);
    EXPECT_EQ(Number(tables, "PavementA", "MAintItemCost", 3), 200.0);
    EXPECT_EQ(Number(tables, "PavementA", "PWCostM", 3), 100.0);
    EXPECT_EQ(Number(tables, "PavementB", "MAintItemCost", 3), 0.0);
    EXPECT_EQ(Messages(), std::vector<std::string>{});
}

/// Two costs and a rate: an initial cost of 1,000,000 and 200,000 spent in the year 10, at 4 per cent real
/// rate and 3 per cent inflation, over 40 years.
TEST_F(StagingTest, TheCostSummaryIsStagedUnrounded) {
    Set("InflationRate", 3.0);
    Set("DiscountRate", 4.0);
    Set("AnalysisPeriodA", 40.0);
    SetCell("ItemTotal2", 1, 1, 1000000.0);
    SetCell("ItemTotal4", 1, 1, 200000.0);
    SetCell("RehabItemCost", 2, 1, 200000.0);
    SetCell("RehabYear", 2, 1, 10.0);
    const StagedTables tables = Stage(StageLifeCycleCost);
    const double worth = 1000000.0 + 200000.0 / std::pow(1.04, 10);
    const double growth = std::pow(1.04, 40);
    EXPECT_EQ(Number(tables, "LCCAnalysis", "InitialCostA"), 1000000.0);
    EXPECT_EQ(Number(tables, "LCCAnalysis", "RehabCostA"), 200000.0);
    EXPECT_EQ(Number(tables, "LCCAnalysis", "TodaysCostA"), 1200000.0);
    EXPECT_NEAR(Number(tables, "LCCAnalysis", "InflatedCostA"), 1000000.0 + 200000.0 * std::pow(1.03, 10),
                1e-6);
    EXPECT_NEAR(Number(tables, "LCCAnalysis", "DiscountCostA"), worth, 1e-6);
    EXPECT_NEAR(Number(tables, "LCCAnalysis", "EUACA"), worth * 0.04 * growth / (growth - 1.0), 1e-6);
    EXPECT_EQ(Number(tables, "LCCAnalysis", "EUACB"), 0.0);
    EXPECT_EQ(Messages(), std::vector<std::string>{});
}

TEST_F(StagingTest, ASeriesWithoutARateIsAFailureOfEachOfItsSums) {
    SetCell("ItemTotal2", 1, 1, 500.0);
    SetCell("RehabItemCost", 1, 1, 100.0);
    SetCell("RehabQuantity", 1, 1, 1.0);
    SetCell("RehabUnitCost", 1, 1, 10.0);
    Set("AnalysisPeriodA", 10.0);
    const StagedTables tables = Stage(StageLifeCycleCost);
    const std::vector<std::string> messages = Messages();
    ASSERT_EQ(messages.size(), 2U);  // inflated and discounted
    for (const std::string& message : messages)
        EXPECT_TRUE(message.starts_with("Error updating : ")) << message;
    EXPECT_EQ(Number(tables, "LCCAnalysis", "InflatedCostA"), 500.0);
    EXPECT_EQ(Number(tables, "LCCAnalysis", "DiscountCostA"), 500.0);
}

}  // namespace
}  // namespace kelvor::test
