#include "lcc/calc/money_over_time.h"

#include <gtest/gtest.h>

#include "cash_flow.h"

namespace kelvor::test {
namespace {

TEST(MoneyOverTimeTest, APaymentIsWorthWhatGrowsToItYearByYear) {
    for (const double rate : {0.0, 0.0275, 0.04, 0.1, -0.02}) {
        for (const int years : {0, 1, 12, 40}) {
            EXPECT_NEAR(WorthOfPayment(2500.0, rate, years).value(), PresentWorth({{2500.0, years}}, rate),
                        1e-9)
                << rate << " " << years;
        }
    }
}

TEST(MoneyOverTimeTest, ASeriesIsWorthItsPaymentsYearByYear) {
    for (const double rate : {0.0275, 0.04, 0.1, -0.02}) {
        for (const int years : {0, 1, 12, 40}) {
            EXPECT_NEAR(WorthOfSeries(800.0, rate, years).value(),
                        PresentWorth(EveryYear(800.0, years), rate), 1e-8)
                << rate << " " << years;
        }
    }
}

TEST(MoneyOverTimeTest, TheAnnualSharePaysAWorthBackInTheYears) {
    for (const double percent : {2.75, 4.0, 10.0}) {
        for (const int years : {1, 12, 40}) {
            const double payment = 1e6 * AnnualShare(percent, years).value();
            EXPECT_NEAR(LeftOfDebt(1e6, payment, percent / 100.0, years), 0.0, 1e-6)
                << percent << " " << years;
        }
    }
}

TEST(MoneyOverTimeTest, WhatHasNoValueIsAFault) {
    EXPECT_THROW(WorthOfSeries(800.0, 0.0, 20.0), ArithmeticFault);
    EXPECT_THROW(WorthOfSeries(0.0, 0.0, 20.0), ArithmeticFault) << "even of nothing";
    EXPECT_THROW(WorthOfPayment(800.0, -1.0, 20.0), ArithmeticFault);
    EXPECT_THROW(AnnualShare(4.0, 0.0), ArithmeticFault);
    EXPECT_THROW(AnnualShare(0.0, 20.0), ArithmeticFault);
}

}  // namespace
}  // namespace kelvor::test
