#include "lcc/calc/economic_factors.h"

#include <gtest/gtest.h>

#include "support/test_host.h"

namespace kelvor::test {
namespace {

class EconomicFactorsTest : public testing::Test {
  protected:
    /// The discount rate that follows from two rates, percent.
    double DiscountRate(double interest, double inflation) {
        program_.Set("InterestRate", interest);
        program_.Set("InflationRate", inflation);
        CalcContext context = program_.program.state().MakeCalcContext();
        Dispatch({EconomicFactorKeys()}).CalcField(context, "DiscountRate", "DISCOUNTRATE");
        return program_.Get("DiscountRate");
    }

    TestProgram program_;
};

TEST_F(EconomicFactorsTest, TheDiscountRateIsWhatInflationLeavesOfTheInterest) {
    // What 100 grow to in a year, in money of today.
    for (const auto& [interest, inflation] : {std::pair(8.0, 3.0), {5.0, 2.0}, {12.5, 12.5}, {2.0, 6.0}}) {
        const double grown = 100.0 * (100.0 + interest) / (100.0 + inflation);
        EXPECT_NEAR(DiscountRate(interest, inflation), grown - 100.0, 1e-12) << interest << " " << inflation;
    }
}

TEST_F(EconomicFactorsTest, WithoutInflationItIsTheInterestAndWithoutInterestALoss) {
    EXPECT_EQ(DiscountRate(7.0, 0.0), 7.0);
    EXPECT_NEAR(DiscountRate(0.0, 25.0), -20.0, 1e-12);
    EXPECT_EQ(DiscountRate(0.0, 0.0), 0.0);
}

TEST_F(EconomicFactorsTest, MoneyThatLosesAllItsValueLeavesTheRateOfBefore) {
    EXPECT_EQ(DiscountRate(4.0, 0.0), 4.0);
    EXPECT_EQ(DiscountRate(4.0, -100.0), 4.0) << "a division by zero";
}

}  // namespace
}  // namespace kelvor::test
