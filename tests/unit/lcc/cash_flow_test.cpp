#include "lcc/calc/cash_flow.h"

#include <gtest/gtest.h>

#include "cash_flow.h"
#include "cost_fixture.h"

namespace kelvor::test {
namespace {

/// 1,000 at the opening, 50 in each of ten years, 300 in year 4 and 200 in year 12.
CashFlow SampleFlow() { return {1000.0, 50.0, 10.0, {{300.0, 4.0}, {200.0, 12.0}}}; }

std::vector<Expense> SampleExpenses() {
    std::vector<Expense> expenses = EveryYear(50.0, 10);
    expenses.insert(expenses.end(), {{1000.0, 0}, {300.0, 4}, {200.0, 12}});
    return expenses;
}

TEST(CashFlowTest, ThePresentWorthIsTheSumOfItsYears) {
    EXPECT_NEAR(PresentWorthAt(SampleFlow(), 6.0).value(), PresentWorth(SampleExpenses(), 0.06), 1e-9);
}

TEST(CashFlowTest, AtARateOfZeroEverythingCountsAtFaceValue) {
    EXPECT_EQ(PresentWorthAt(SampleFlow(), 0.0).value(), 1000.0 + 10 * 50.0 + 300.0 + 200.0);
}

TEST(CashFlowTest, TheCumulatedWorthOfAYearIsThatOfAllThatWasPaidByThen) {
    const std::vector<Real> paid = CumulatedPresentWorth(SampleFlow(), 6.0);
    ASSERT_EQ(paid.size(), 13U) << "the last payment is later than the period";
    for (int year = 0; year <= 12; ++year) {
        std::vector<Expense> soFar;
        for (const Expense& expense : SampleExpenses()) {
            if (expense.year <= year) soFar.push_back(expense);
        }
        EXPECT_NEAR(paid[static_cast<std::size_t>(year)].value(), PresentWorth(soFar, 0.06), 1e-9) << year;
    }
}

TEST(CashFlowTest, ABrokenYearCountsToTheOneThatItEndsIn) {
    const CashFlow flow = {0.0, 0.0, 3.0, {{100.0, 1.5}}};
    const std::vector<Real> paid = CumulatedPresentWorth(flow, 0.0);
    ASSERT_EQ(paid.size(), 4U);
    EXPECT_EQ(paid[1].value(), 0.0);
    EXPECT_EQ(paid[2].value(), 100.0);
}

TEST(BreakEvenRatesTest, TwicePriceInTenYearsBreaksEvenWhereMoneyDoublesInTenYears) {
    const CashFlow a = {10'000.0, 0.0, 10.0, {}};
    const CashFlow b = {0.0, 0.0, 10.0, {{20'000.0, 10.0}}};
    const std::vector<double> rates = BreakEvenRates(a, b, 15.0);
    ASSERT_EQ(rates.size(), 1U);
    EXPECT_NEAR(Grown(1.0, rates[0] / 100.0, 10), 2.0, 1e-6);
}

TEST(BreakEvenRatesTest, EveryCrossingIsFound) {
    // With v = 1 / (1 + rate), the difference is (v - v5)(v - v10), which is 0 at 5 and at 10 per cent.
    const double v5 = 1.0 / 1.05;
    const double v10 = 1.0 / 1.10;
    const CashFlow a = {1000.0 * v5 * v10, 0.0, 2.0, {{1000.0, 2.0}}};
    const CashFlow b = {0.0, 0.0, 2.0, {{1000.0 * (v5 + v10), 1.0}}};
    const std::vector<double> rates = BreakEvenRates(a, b, 15.0);
    ASSERT_EQ(rates.size(), 2U);
    EXPECT_NEAR(rates[0], 5.0, 1e-4);
    EXPECT_NEAR(rates[1], 10.0, 1e-4);
}

TEST(BreakEvenRatesTest, EqualAndOneSidedFlowsHaveNone) {
    EXPECT_TRUE(BreakEvenRates(SampleFlow(), SampleFlow(), 15.0).empty());
    CashFlow dearer = SampleFlow();
    dearer.initial = 1500.0;
    EXPECT_TRUE(BreakEvenRates(SampleFlow(), dearer, 15.0).empty());
}

class ReadCashFlowTest : public CostTest {};

TEST_F(ReadCashFlowTest, ItIsWhatTheSummaryTakes) {
    Set({{"AnalysisPeriodA", 30.0}});
    SetRow(1, 1, {{"ItemTotal2", 5000.0}, {"RehabQuantity", 4.0}, {"RehabUnitCost", 25.0}});
    SetRow(1, 1, {{"RehabItemCost", 3000.0}});
    SetRow(5, 1, {{"RehabItemCost", 700.0}, {"RehabYear", 12.0}});
    SetRow(35, 1, {{"RehabItemCost", 800.0}, {"RehabYear", 40.0}});
    SetRow(36, 1, {{"RehabItemCost", 900.0}, {"RehabYear", 2.0}});
    const CashFlow flow = ReadCashFlow(Context(), 1);
    EXPECT_EQ(flow.initial.value(), 5000.0);
    EXPECT_EQ(flow.yearly.value(), 100.0);
    EXPECT_EQ(flow.period.value(), 30.0);
    ASSERT_EQ(flow.payments.size(), 2U) << "row 36 is not part of it";
    EXPECT_EQ(flow.payments[0].amount.value(), 700.0);
    EXPECT_EQ(flow.payments[1].year.value(), 40.0);
}

TEST_F(ReadCashFlowTest, WithoutItsCostThereIsNoAnnualMaintenance) {
    SetRow(1, 1, {{"RehabQuantity", 4.0}, {"RehabUnitCost", 25.0}});
    EXPECT_EQ(ReadCashFlow(Context(), 1).yearly.value(), 0.0);
}

}  // namespace
}  // namespace kelvor::test
