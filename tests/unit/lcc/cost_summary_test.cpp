#include "lcc/calc/cost_summary.h"

#include "cash_flow.h"
#include "cost_fixture.h"

namespace kelvor::test {
namespace {

class CostSummaryTest : public CostTest {
  protected:
    CostSummaryTest() {
        Set({{"AnalysisPeriodA", 20.0},
             {"AnalysisPeriodB", 35.0},
             {"InflationRate", 3.0},
             {"DiscountRate", 4.0}});
        SetRow(1, 1, {{"ItemTotal2", 100'000.0}, {"ItemTotal4", 50'000.0}});
        SetRow(1, 2, {{"ItemTotal2", 140'000.0}, {"ItemTotal4", 30'000.0}});
    }

    /// A single item of a pavement.
    void Item(int row, int pavement, double cost, int year) {
        SetRow(row, pavement, {{"RehabItemCost", cost}, {"RehabYear", year}});
    }

    /// Annual maintenance of 10 times a tenth of a cost.
    void AnnualMaintenance(int pavement, double cost, int years) {
        SetRow(1, pavement,
               {{"RehabQuantity", 10.0}, {"RehabUnitCost", cost / 10.0}, {"RehabItemCost", cost * years}});
    }

    const CostSummary& Compute() {
        ComputeCostSummary(Context(), summary_, [this](const ArithmeticFault&) { ++faults_; });
        return summary_;
    }

    const PavementCosts& ComputeA() { return Compute().pavements[0]; }
    const PavementCosts& ComputeB() { return Compute().pavements[1]; }

    CostSummary summary_;
    int faults_ = 0;
};

TEST_F(CostSummaryTest, TotalsAreThoseOfTheGrids) {
    EXPECT_EQ(ComputeA().initial.value(), 100'000.0);
    EXPECT_EQ(ComputeA().rehabilitation.value(), 50'000.0);
    EXPECT_EQ(ComputeA().todays.value(), 150'000.0);
    EXPECT_EQ(ComputeB().initial.value(), 140'000.0);
    EXPECT_EQ(ComputeB().rehabilitation.value(), 30'000.0);
    EXPECT_EQ(ComputeB().todays.value(), 170'000.0);
    EXPECT_EQ(faults_, 0);
}

TEST_F(CostSummaryTest, ThePresentWorthIsTheCashFlowYearByYear) {
    AnnualMaintenance(1, 500.0, 20);
    Item(2, 1, 20'000.0, 10);
    Item(35, 1, 30'000.0, 15);
    AnnualMaintenance(2, 800.0, 35);
    Item(7, 2, 25'000.0, 18);
    std::vector<Expense> flowA = EveryYear(500.0, 20);
    flowA.insert(flowA.end(), {{100'000.0, 0}, {20'000.0, 10}, {30'000.0, 15}});
    std::vector<Expense> flowB = EveryYear(800.0, 35);
    flowB.insert(flowB.end(), {{140'000.0, 0}, {25'000.0, 18}});
    EXPECT_NEAR(ComputeA().discounted.value(), PresentWorth(flowA, 0.04), 1e-6);
    EXPECT_NEAR(ComputeB().discounted.value(), PresentWorth(flowB, 0.04), 1e-6);
}

TEST_F(CostSummaryTest, TheInflatedCostGrowsYearByYear) {
    Item(2, 1, 20'000.0, 10);
    Item(3, 1, 30'000.0, 15);
    EXPECT_NEAR(ComputeA().inflated.value(),
                100'000.0 + Grown(20'000.0, 0.03, 10) + Grown(30'000.0, 0.03, 15), 1e-6);
    EXPECT_EQ(ComputeB().inflated.value(), 140'000.0);
}

TEST_F(CostSummaryTest, InflatedMaintenanceGrowsByInflationAndIsDividedByTheDiscountRate) {
    AnnualMaintenance(1, 500.0, 20);
    double sum = 0.0;
    for (int year = 0; year < 20; ++year) sum += Grown(500.0, 0.03, year);
    EXPECT_NEAR(ComputeA().inflated.value(), 100'000.0 + sum * 0.03 / 0.04, 1e-6);
}

TEST_F(CostSummaryTest, TheAnnualCostPaysThePresentWorthBackOverThePeriod) {
    Item(2, 1, 20'000.0, 10);
    Compute();
    for (const auto& [pavement, years] : {std::pair(0U, 20), {1U, 35}}) {
        const PavementCosts& costs = summary_.pavements[pavement];
        EXPECT_NEAR(LeftOfDebt(costs.discounted.value(), costs.euac.value(), 0.04, years), 0.0, 1e-6);
    }
}

TEST_F(CostSummaryTest, MaintenanceIsWorkedOutFromQuantityAndUnitCost) {
    SetRow(1, 1, {{"RehabQuantity", 10.0}, {"RehabUnitCost", 50.0}, {"RehabItemCost", 1.0}});
    EXPECT_NEAR(ComputeA().discounted.value(), 100'000.0 + PresentWorth(EveryYear(500.0, 20), 0.04), 1e-6);
    SetRow(1, 1, {{"RehabItemCost", 0.0}});
    EXPECT_EQ(ComputeA().discounted.value(), 100'000.0) << "a cost of 0 is no maintenance";
}

TEST_F(CostSummaryTest, WithoutMaintenanceARateOfZeroIsNoFault) {
    Set({{"DiscountRate", 0.0}});
    Item(2, 1, 20'000.0, 10);
    EXPECT_EQ(ComputeA().discounted.value(), 120'000.0) << "at face value";
    EXPECT_EQ(ComputeA().euac.value(), 0.0);
    EXPECT_EQ(faults_, 0);
}

TEST_F(CostSummaryTest, AnItemOfYearZeroCountsAtFaceValue) {
    Item(2, 1, 20'000.0, 0);
    EXPECT_EQ(ComputeA().inflated.value(), 120'000.0);
    EXPECT_EQ(ComputeA().discounted.value(), 120'000.0);
}

TEST_F(CostSummaryTest, AGapInTheGridIsPassedOver) {
    Item(4, 1, 20'000.0, 0);
    Item(6, 1, 7'000.0, 0);
    EXPECT_EQ(ComputeA().discounted.value(), 127'000.0);
}

TEST_F(CostSummaryTest, AYearBeyondThePeriodCountsLikeAnyOther) {
    Item(2, 1, 20'000.0, 60);
    EXPECT_NEAR(ComputeA().discounted.value(), PresentWorth({{100'000.0, 0}, {20'000.0, 60}}, 0.04), 1e-6);
    EXPECT_NEAR(ComputeA().inflated.value(), 100'000.0 + Grown(20'000.0, 0.03, 60), 1e-6);
}

TEST_F(CostSummaryTest, ARowBelowThoseOfTheGridDoesNotCount) {
    Item(36, 1, 20'000.0, 0);
    EXPECT_EQ(ComputeA().discounted.value(), 100'000.0);
    EXPECT_EQ(ComputeA().inflated.value(), 100'000.0);
}

TEST_F(CostSummaryTest, AFaultIsReportedAndTheNextStepGoesOn) {
    Set({{"DiscountRate", 0.0}});
    AnnualMaintenance(1, 500.0, 20);
    Item(2, 1, 20'000.0, 0);
    EXPECT_EQ(ComputeA().discounted.value(), 120'000.0) << "what was gathered stays, what follows is added";
    EXPECT_EQ(summary_.pavements[0].inflated.value(), 120'000.0);
    EXPECT_EQ(faults_, 2) << "one for each of both sums";
    EXPECT_EQ(summary_.pavements[1].discounted.value(), 140'000.0);
    EXPECT_EQ(summary_.difference.discounted.value(), -20'000.0);
}

TEST_F(CostSummaryTest, AnAnnualCostThatCannotBeWorkedOutStaysWhatItWas) {
    Compute();
    const double ofA = summary_.pavements[0].euac.value();
    const double ofB = summary_.pavements[1].euac.value();
    ASSERT_GT(ofA, 0.0);
    ASSERT_NE(ofA, ofB);
    SetRow(1, 1, {{"ItemTotal2", 200'000.0}});
    Set({{"AnalysisPeriodB", 0.0}});
    Compute();
    EXPECT_NEAR(summary_.pavements[0].euac.value(), 2.0 * ofA, 1e-9);
    EXPECT_EQ(summary_.pavements[1].euac.value(), ofB);
    SetRow(1, 1, {{"ItemTotal2", 300'000.0}});
    Set({{"DiscountRate", 0.0}});
    Compute();
    EXPECT_NEAR(summary_.pavements[0].euac.value(), 2.0 * ofA, 1e-9);
    CostSummary fresh;
    ComputeCostSummary(Context(), fresh, [](const ArithmeticFault&) {});
    EXPECT_EQ(fresh.pavements[0].euac.value(), 0.0) << "in a record of its own it is 0";
}

TEST_F(CostSummaryTest, TheDifferencesAreALessB) {
    AnnualMaintenance(1, 500.0, 20);
    Item(2, 2, 20'000.0, 10);
    Compute();
    const PavementCosts& a = summary_.pavements[0];
    const PavementCosts& b = summary_.pavements[1];
    const PavementCosts& difference = summary_.difference;
    EXPECT_EQ(difference.initial.value(), -40'000.0);
    EXPECT_EQ(difference.rehabilitation.value(), 20'000.0);
    EXPECT_EQ(difference.todays.value(), -20'000.0);
    EXPECT_EQ(difference.inflated.value(), a.inflated.value() - b.inflated.value());
    EXPECT_EQ(difference.discounted.value(), a.discounted.value() - b.discounted.value());
    EXPECT_EQ(difference.euac.value(), a.euac.value() - b.euac.value());
}

TEST_F(CostSummaryTest, AnOverflowIsAFaultOfItsStepAlone) {
    SetRow(1, 1, {{"ItemTotal2", 1.7e308}, {"ItemTotal4", 1.7e308}});
    Compute();
    EXPECT_EQ(faults_, 1) << "the sum of today's costs";
    EXPECT_EQ(summary_.pavements[0].initial.value(), 1.7e308);
    EXPECT_EQ(summary_.pavements[0].todays.value(), 0.0);
}

TEST_F(CostSummaryTest, NothingIsWrittenToTheProject) {
    Item(2, 1, 20'000.0, 10);
    int before = 0;
    store().ForEachFilled([&](const CellKey&, const CellValue&) { ++before; });
    Compute();
    int after = 0;
    store().ForEachFilled([&](const CellKey&, const CellValue&) { ++after; });
    EXPECT_EQ(before, after);
}

TEST(FormatWholeTest, MoneyIsShownWhole) {
    EXPECT_EQ(FormatWhole(1234567.5), "1,234,568");
    EXPECT_EQ(FormatWhole(0.0), "0");
    EXPECT_EQ(FormatWhole(std::nullopt), "0");
    EXPECT_EQ(FormatWhole(-1500.4), "-1,500");
}

}  // namespace
}  // namespace kelvor::test
