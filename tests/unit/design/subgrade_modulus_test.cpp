#include "design/calc/subgrade_modulus.h"

#include <gtest/gtest.h>

#include <cmath>

#include "platform/real.h"

namespace kelvor {
namespace {

double ByCbr(double cbr) { return 1941.488 * std::exp(0.6844709 * std::log(cbr)); }
double ByRValue(double rValue) { return 2165.935 * std::pow(std::exp(0.0343507), rValue); }

TEST(SubgradeModulusTest, EachTestAloneGoverns) {
    const SubgradeModulus byCbr = ComputeSubgradeModulus(5.0, 0.0);
    EXPECT_NEAR(byCbr.governing, 5842.0, 0.05);
    EXPECT_NEAR(byCbr.byCbr, ByCbr(5.0), 1e-9);
    EXPECT_EQ(byCbr.byRValue, 0.0);
    const SubgradeModulus byRValue = ComputeSubgradeModulus(0.0, 20.0);
    EXPECT_NEAR(byRValue.governing, 4305.4, 0.05);
    EXPECT_NEAR(byRValue.byRValue, ByRValue(20.0), 1e-9);
    EXPECT_EQ(byRValue.byCbr, 0.0);
}

TEST(SubgradeModulusTest, OfBothTheSmallerGoverns) {
    for (const double cbr : {1.0, 2.0, 5.0, 20.0, 100.0}) {
        for (const double rValue : {1.0, 10.0, 20.0, 50.0, 85.0}) {
            const double expected = std::min(ByCbr(cbr), ByRValue(rValue));
            EXPECT_NEAR(ComputeSubgradeModulus(cbr, rValue).governing, expected, expected * 1e-12);
        }
    }
}

TEST(SubgradeModulusTest, ATestBelowOneGovernsNothing) {
    EXPECT_EQ(ComputeSubgradeModulus(0.5, 0.0).governing, 0.0);
    EXPECT_GT(ComputeSubgradeModulus(0.5, 0.0).byCbr, 0.0);
    EXPECT_EQ(ComputeSubgradeModulus(0.0, 0.5).governing, 0.0);
    EXPECT_EQ(ComputeSubgradeModulus(0.5, 20.0).governing, 0.0) << "nor does the other one beside it";
    EXPECT_EQ(ComputeSubgradeModulus(5.0, 0.5).governing, 0.0);
    EXPECT_EQ(ComputeSubgradeModulus(0.0, 0.0).governing, 0.0);
}

TEST(SubgradeModulusTest, WhatHasNoFiniteResultIsAFault) {
    EXPECT_THROW((void)ComputeSubgradeModulus(-1.0, 0.0), ArithmeticFault);
    EXPECT_THROW((void)ComputeSubgradeModulus(0.0, 1e6), ArithmeticFault);
}

}  // namespace
}  // namespace kelvor
