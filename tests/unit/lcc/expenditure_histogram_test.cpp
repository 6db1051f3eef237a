#include "lcc/calc/expenditure_histogram.h"

#include "cost_fixture.h"

namespace kelvor::test {
namespace {

class ExpenditureHistogramTest : public CostTest {
  protected:
    ExpenditureHistogramTest() {
        Set({{"AnalysisPeriodA", 5.0}, {"AnalysisPeriodB", 8.0}});
        SetRow(1, 1, {{"ItemTotal2", 1000.0}});
        SetRow(1, 2, {{"ItemTotal2", 2000.0}});
    }

    void Item(int row, int pavement, double cost, const std::string& year) {
        SetRow(row, pavement, {{"RehabItemCost", cost}});
        program_.units().SetDisplayValue("RehabYear", row, pavement, year);
    }

    void AnnualMaintenance(int row, int pavement, double cost) {
        SetText("RehabItem", row, pavement, "Annual Maintenance");
        Item(row, pavement, cost, "N/A");
    }

    /// The amounts of a pavement, year by year.
    std::vector<std::optional<double>> Amounts(std::size_t pavement) {
        std::vector<std::optional<double>> amounts;
        const auto histogram = BuildHistogram(Context(), [](const std::string&) {});
        for (const YearOfExpenditure& year : histogram.value()) {
            EXPECT_EQ(year.year, static_cast<int>(amounts.size()));
            const std::optional<Real> amount = year.amounts[pavement - 1];
            amounts.push_back(amount ? std::optional(amount->value()) : std::nullopt);
        }
        return amounts;
    }

    using Series = std::vector<std::optional<double>>;
    static constexpr std::nullopt_t kNone = std::nullopt;
};

TEST_F(ExpenditureHistogramTest, YearsGoToTheLongerPeriodAndAreEmptyBeyondTheirOwn) {
    EXPECT_EQ(Amounts(1), (Series{1000.0, 0.0, 0.0, 0.0, 0.0, 0.0, kNone, kNone, kNone}));
    EXPECT_EQ(Amounts(2), (Series{2000.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0}));
}

TEST_F(ExpenditureHistogramTest, ItemsOfTheSameYearAddUp) {
    Item(2, 1, 300.0, "3");
    Item(9, 1, 40.0, "3");
    Item(35, 1, 5.0, "5");
    Item(2, 2, 700.0, "8");
    EXPECT_EQ(Amounts(1), (Series{1000.0, 0.0, 0.0, 340.0, 0.0, 5.0, kNone, kNone, kNone}));
    EXPECT_EQ(Amounts(2).back(), 700.0);
}

TEST_F(ExpenditureHistogramTest, EachYearShowsTheWholeCostOfTheAnnualMaintenance) {
    AnnualMaintenance(1, 1, 150.0);
    Item(2, 1, 300.0, "3");
    EXPECT_EQ(Amounts(1), (Series{1000.0, 150.0, 150.0, 450.0, 150.0, 150.0, kNone, kNone, kNone}));
    EXPECT_EQ(Amounts(2)[1], 0.0) << "the other pavement has none";
}

TEST_F(ExpenditureHistogramTest, MaintenanceIsThatOfTheFirstRowOfItsNameAsShown) {
    AnnualMaintenance(4, 1, 10.006);
    AnnualMaintenance(6, 1, 99.0);
    SetText("RehabItem", 2, 1, "annual maintenance");
    Item(2, 1, 7.0, "N/A");
    EXPECT_EQ(Amounts(1)[2], 10.01);
}

TEST_F(ExpenditureHistogramTest, YearZeroShowsTheInitialCostsAlone) {
    Item(2, 1, 300.0, "0");
    AnnualMaintenance(1, 1, 150.0);
    EXPECT_EQ(Amounts(1)[0], 1000.0);
}

TEST_F(ExpenditureHistogramTest, ARowWithoutAYearIsPassedOver) {
    SetRow(2, 1, {{"RehabItemCost", 300.0}});
    Item(3, 1, 300.0, "N/A");
    Item(4, 1, 300.0, "later");
    Item(5, 1, 300.0, "-1");
    Item(6, 1, 300.0, "101");
    SetRow(7, 1, {{"RehabItemCost", 20.0}, {"RehabYear", 2.4}});
    SetRow(36, 1, {{"RehabItemCost", 300.0}, {"RehabYear", 2.0}});
    EXPECT_EQ(Amounts(1), (Series{1000.0, 0.0, 20.0, 0.0, 0.0, 0.0, kNone, kNone, kNone}));
}

TEST_F(ExpenditureHistogramTest, APavementWithoutAPeriodHasNoSeries) {
    Set({{"AnalysisPeriodB", 0.0}});
    EXPECT_EQ(Amounts(1).size(), 6U);
    EXPECT_EQ(Amounts(2), Series(6, kNone)) << "not even its initial costs";
    Set({{"AnalysisPeriodA", 0.0}, {"AnalysisPeriodB", 2.0}});
    EXPECT_EQ(Amounts(1), Series(3, kNone));
    EXPECT_EQ(Amounts(2), (Series{2000.0, 0.0, 0.0}));
}

TEST_F(ExpenditureHistogramTest, WithoutAnyPeriodThereIsNone) {
    Set({{"AnalysisPeriodA", 0.0}, {"AnalysisPeriodB", 0.0}});
    EXPECT_FALSE(BuildHistogram(Context(), [](const std::string&) {}).has_value());
}

TEST_F(ExpenditureHistogramTest, PeriodsAreWholeYearsOfACentury) {
    Set({{"AnalysisPeriodA", 5.9}, {"AnalysisPeriodB", 1e9}});
    EXPECT_EQ(Amounts(1).size(), 101U);
    EXPECT_EQ(Amounts(1)[5], 0.0);
    EXPECT_EQ(Amounts(1)[6], kNone);
    Item(2, 2, 30.0, "100");
    EXPECT_EQ(Amounts(2).back(), 30.0);
    Set({{"AnalysisPeriodA", -3.0}, {"AnalysisPeriodB", 0.5}});
    EXPECT_EQ(Amounts(1), (Series{1000.0}));
    EXPECT_EQ(Amounts(2), (Series{2000.0}));
}

TEST_F(ExpenditureHistogramTest, ASumBeyondADoubleIsPassedOver) {
    Item(2, 1, 1.7e308, "3");
    Item(3, 1, 1.7e308, "3");
    EXPECT_EQ(Amounts(1)[3], 1.7e308);
}

TEST_F(ExpenditureHistogramTest, EachRowWithAYearAndEachYearOfThePeriodIsReported) {
    Set({{"AnalysisPeriodA", 2.0}, {"AnalysisPeriodB", 1.0}});
    AnnualMaintenance(1, 1, 150.0);
    Item(2, 1, 300.0, "7");
    Item(3, 1, 300.0, "");
    std::vector<std::string> steps;
    BuildHistogram(Context(), [&](const std::string& step) { steps.push_back(step); });
    EXPECT_EQ(steps,
              (std::vector<std::string>{
                  "Calculating annual cost for 7 year.", "Building histogram (costs for 1 year).",
                  "Building histogram (costs for 2 year).", "Building histogram (costs for 1 year)."}));
}

}  // namespace
}  // namespace kelvor::test
