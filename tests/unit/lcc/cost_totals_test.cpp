#include "cost_fixture.h"

namespace kelvor::test {
namespace {

using CostTotalsTest = CostTest;

struct Total {
    const char *key, *column;
    bool ofBothPavements;
};

constexpr Total kTotals[] = {{"ItemTotal2", "InitialItemCost", false},
                             {"ItemTotal3", "MaintItemCost", true},
                             {"ItemTotal4", "RehabItemCost", false},
                             {"PrWorthTotal3", "PWCostM", true},
                             {"PrWorthTotal4", "PWCostR", false}};

TEST_F(CostTotalsTest, EachIsTheSumOfItsColumnOfThePavementInHandOrOfBoth) {
    double weight = 1.0;
    for (const Total& total : kTotals) {
        SetRow(1, 1, {{total.column, 1.0 * weight}});
        SetRow(35, 1, {{total.column, 20.0 * weight}});
        SetRow(2, 2, {{total.column, 300.0 * weight}});
        weight *= 10'000.0;
    }
    weight = 1.0;
    for (const Total& total : kTotals) {
        for (const int pavement : {1, 2}) {
            WorkIn(5, pavement);
            CalcInHand(total.key);
        }
        EXPECT_EQ(Cell(total.key, 1, 1), (total.ofBothPavements ? 321.0 : 21.0) * weight) << total.key;
        EXPECT_EQ(Cell(total.key, 1, 2), (total.ofBothPavements ? 321.0 : 300.0) * weight) << total.key;
        weight *= 10'000.0;
    }
}

TEST_F(CostTotalsTest, WithoutRowsEachIsZero) {
    for (const Total& total : kTotals) {
        SetRow(1, 2, {{total.key, 7.0}});
        WorkIn(1, 2);
        CalcInHand(total.key);
        EXPECT_EQ(Cell(total.key, 1, 2), 0.0) << total.key;
        EXPECT_EQ(Cell(total.key, 1, 1), std::nullopt) << total.key;
    }
}

TEST_F(CostTotalsTest, ARowBelowThoseOfTheGridCounts) {
    SetRow(36, 1, {{"RehabItemCost", 5.0}});
    CalcInHand("ItemTotal4");
    EXPECT_EQ(Cell("ItemTotal4", 1, 1), 5.0);
}

TEST_F(CostTotalsTest, ASumBeyondADoubleLeavesTheTotal) {
    SetRow(1, 1, {{"InitialItemCost", 1.7e308}, {"ItemTotal2", 7.0}});
    SetRow(2, 1, {{"InitialItemCost", 1.7e308}});
    CalcInHand("ItemTotal2");
    EXPECT_EQ(Cell("ItemTotal2", 1, 1), 7.0);
}

}  // namespace
}  // namespace kelvor::test
