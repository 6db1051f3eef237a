#include "lcc/calc/cost_verdict.h"

#include "cash_flow.h"
#include "cost_fixture.h"

namespace kelvor::test {
namespace {

class CostVerdictTest : public CostTest {
  protected:
    CostVerdictTest() { Set({{"AnalysisPeriodA", 30.0}, {"AnalysisPeriodB", 30.0}, {"DiscountRate", 4.0}}); }

    /// Initial costs that are as good as a cost in each of 30 years at 4 per cent.
    void AnnualCost(int pavement, double cost) {
        SetRow(1, pavement, {{"ItemTotal2", PresentWorth(EveryYear(cost, 30), 0.04)}});
    }

    void Item(int row, int pavement, double cost, double year) {
        SetRow(row, pavement, {{"RehabItemCost", cost}, {"RehabYear", year}});
    }

    /// Annual maintenance as its page prices it.
    void AnnualMaintenance(int pavement, double cost) {
        SetRow(1, pavement, {{"RehabQuantity", cost}, {"RehabUnitCost", 1.0}});
        Calc("RehabItemCost", 1, pavement);
        Calc("PWCostR", 1, pavement);
    }

    std::string Verdict() { return CostVerdict(Context()); }
};

constexpr const char* kNoCrossing = " Between 0 and 15 per cent the present worths do not cross.";

TEST_F(CostVerdictTest, TheCheaperOneIsNamedWithWhatItSaves) {
    AnnualCost(1, 95'700.0);
    AnnualCost(2, 84'200.0);
    EXPECT_EQ(Verdict(), std::string("Pavement B costs 12 per cent less a year than A: 84,200 against "
                                     "95,700.") +
                             kNoCrossing);
}

TEST_F(CostVerdictTest, SmallSavingsAreNotRoundedAway) {
    AnnualCost(1, 100'000.0);
    AnnualCost(2, 100'100.0);
    EXPECT_EQ(Verdict(), std::string("Pavement A costs less than 1 per cent less a year than B: 100,000 "
                                     "against 100,100.") +
                             kNoCrossing);
}

TEST_F(CostVerdictTest, CostsThatAreShownAlikeAreTheSame) {
    AnnualCost(1, 1000.1);
    AnnualCost(2, 1000.2);
    EXPECT_EQ(Verdict(), std::string("Both pavements cost 1,000 a year.") + kNoCrossing);
}

TEST_F(CostVerdictTest, EveryCrossingIsTold) {
    // The difference is (v - v5)(v - v10) with v = 1 / (1 + rate): 0 at 5 and at 10 per cent, less between.
    const double v5 = 1.0 / 1.05;
    const double v10 = 1.0 / 1.10;
    SetRow(1, 1, {{"ItemTotal2", 1e6 * v5 * v10}});
    Item(2, 1, 1e6, 2.0);
    Item(2, 2, 1e6 * (v5 + v10), 1.0);
    const std::string verdict = Verdict();
    EXPECT_NE(verdict.find("Below 5.0 per cent B has the lower present worth, from 5.0 to 10.0 A, above 10.0 "
                           "B."),
              std::string::npos)
        << verdict;
}

TEST_F(CostVerdictTest, ThereIsNoneUnlessBothAnnualCostsCanBeWorkedOut) {
    AnnualCost(1, 95'700.0);
    AnnualCost(2, 84'200.0);
    for (const char* input : {"DiscountRate", "AnalysisPeriodA", "AnalysisPeriodB"}) {
        const double value = program_.Get(input);
        Set({{input, 0.0}});
        EXPECT_EQ(Verdict(), "") << input;
        Set({{input, value}});
    }
    EXPECT_NE(Verdict(), "");
    Item(2, 1, 1e308, 1.0);
    Item(3, 1, 1e308, 1.0);
    EXPECT_EQ(Verdict(), "") << "no double holds it";
}

TEST_F(CostVerdictTest, MaintenanceThatWasPricedWithAnotherRateOrPeriodIsTold) {
    AnnualCost(1, 95'700.0);
    AnnualCost(2, 84'200.0);
    AnnualMaintenance(2, 100.0);
    EXPECT_EQ(Verdict().find("priced"), std::string::npos);
    Set({{"DiscountRate", 5.0}});
    EXPECT_NE(
        Verdict().find("The annual maintenance of pavement B was priced with another period or rate: open "
                       "Pavement (B) Maintenance & Rehabilitation Costs first."),
        std::string::npos);
    Set({{"DiscountRate", 4.0}, {"AnalysisPeriodB", 31.0}});
    EXPECT_NE(Verdict().find("pavement B was priced"), std::string::npos);
    EXPECT_EQ(Verdict().find("pavement A was priced"), std::string::npos);
}

}  // namespace
}  // namespace kelvor::test
