#include "lcc/calc/cost_chart_values.h"

#include <cmath>

#include "cash_flow.h"
#include "cost_fixture.h"
#include "lcc/calc/cost_summary.h"

namespace kelvor::test {
namespace {

class CostChartValuesTest : public CostTest {
  protected:
    CostChartValuesTest() {
        Set({{"AnalysisPeriodA", 20.0},
             {"AnalysisPeriodB", 35.0},
             {"InflationRate", 3.0},
             {"DiscountRate", 4.0}});
        SetRow(1, 1, {{"ItemTotal2", 100'000.4}, {"ItemTotal4", 50'000.0}, {"RehabItemCost", 10'000.5}});
        SetRow(1, 1, {{"RehabQuantity", 1.0}, {"RehabUnitCost", 500.025}});
        SetRow(1, 2, {{"ItemTotal2", 140'000.0}, {"ItemTotal4", 30'000.0}});
    }

    std::array<double, 2> Values(const char* category) {
        return CostSummaryValues(Context(), category).value();
    }

    using Pair = std::array<double, 2>;
};

TEST_F(CostChartValuesTest, EachCategoryIsAPairOfWholeNumbers) {
    EXPECT_EQ(Values("InitialCost"), (Pair{100'000.0, 140'000.0}));
    EXPECT_EQ(Values("MaintCost"), (Pair{10'001.0, 0.0})) << "half of a unit counts as one";
    EXPECT_EQ(Values("RehabCost"), (Pair{40'000.0, 30'000.0})) << "39,999.5, without the maintenance";
    EXPECT_EQ(Values("TotalExpenditures"), (Pair{150'000.0, 170'000.0})) << "with the maintenance";
}

TEST_F(CostChartValuesTest, PresentWorthAndAnnualCostAreThoseOfTheSummary) {
    std::vector<Expense> flow = EveryYear(500.025, 20);
    flow.push_back({100'000.4, 0});
    const double worth = PresentWorth(flow, 0.04);
    EXPECT_EQ(Values("PW"), (Pair{std::round(worth), 140'000.0}));
    const Pair annual = Values("EUAC");
    EXPECT_NEAR(LeftOfDebt(worth, annual[0], 0.04, 20), 0.0, 0.5 * 30.0) << "half a unit each of 20 years";
    EXPECT_NEAR(LeftOfDebt(140'000.0, annual[1], 0.04, 35), 0.0, 0.5 * 74.0);
}

TEST_F(CostChartValuesTest, TheAnnualCostStartsAtZeroAndFaultsAreSilent) {
    Set({{"DiscountRate", 0.0}});
    EXPECT_EQ(Values("EUAC"), (Pair{0.0, 0.0}));
    EXPECT_EQ(Values("PW"), (Pair{100'000.0, 140'000.0}));
    EXPECT_TRUE(program_.host.record.TakeTexts().empty());
    SetRow(1, 1, {{"ItemTotal4", -1.7e308}, {"RehabItemCost", 1.7e308}});
    EXPECT_EQ(Values("RehabCost")[0], -1.7e308) << "the maintenance cannot be taken off";
}

TEST_F(CostChartValuesTest, AnyOtherCategoryHasNone) {
    for (const char* category : {"", "initialcost", "Inflated", "MaintenanceCosts"}) {
        EXPECT_EQ(CostSummaryValues(Context(), category), std::nullopt) << category;
    }
}

}  // namespace
}  // namespace kelvor::test
