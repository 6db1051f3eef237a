#include "ndt/calc/column_statistics.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace kelvor::test {
namespace {

TEST(ColumnStatisticsTest, ATextbooksSample) {
    // 2 4 4 4 5 5 7 9: mean 5, squares about it 32, so the deviation of the sample is the root of 32 / 7.
    const ColumnStatistics spread = DescribeColumn({9.0, 2.0, 4.0, 5.0, 4.0, 7.0, 4.0, 5.0});
    EXPECT_EQ(spread.tests, 8);
    EXPECT_NEAR(spread.mean->value(), 5.0, 1e-12);
    EXPECT_NEAR(spread.deviation->value(), std::sqrt(32.0 / 7.0), 1e-12);
    EXPECT_NEAR(spread.variation->value(), 100.0 * std::sqrt(32.0 / 7.0) / 5.0, 1e-12);
    // Places 0.15 x 7 = 1.05 and 0.85 x 7 = 5.95 of 2 4 4 4 5 5 7 9.
    EXPECT_NEAR(spread.percentile15->value(), 4.0, 1e-12);
    EXPECT_NEAR(spread.percentile85->value(), 5.0 + 0.95 * 2.0, 1e-12);
}

TEST(ColumnStatisticsTest, PercentilesLieBetweenTheOrderedValues) {
    const ColumnStatistics spread = DescribeColumn({30.0, 10.0, 20.0});
    EXPECT_NEAR(spread.percentile15->value(), 13.0, 1e-12);
    EXPECT_NEAR(spread.percentile85->value(), 27.0, 1e-12);
}

TEST(ColumnStatisticsTest, OfOneTestThereIsNoSpread) {
    const ColumnStatistics spread = DescribeColumn({7.0});
    EXPECT_EQ(spread.tests, 1);
    EXPECT_EQ(spread.mean->value(), 7.0);
    EXPECT_FALSE(spread.deviation);
    EXPECT_FALSE(spread.variation);
    EXPECT_EQ(spread.percentile15->value(), 7.0);
    EXPECT_EQ(spread.percentile85->value(), 7.0);
}

TEST(ColumnStatisticsTest, OfNoTestThereIsNothing) {
    const ColumnStatistics spread = DescribeColumn({});
    EXPECT_EQ(spread.tests, 0);
    EXPECT_FALSE(spread.mean);
    EXPECT_FALSE(spread.percentile15);
    EXPECT_FALSE(spread.percentile85);
}

TEST(ColumnStatisticsTest, AMeanOfZeroHasNoVariation) {
    const ColumnStatistics spread = DescribeColumn({-1.0, 1.0});
    EXPECT_NEAR(spread.deviation->value(), std::sqrt(2.0), 1e-12);
    EXPECT_FALSE(spread.variation);
}

TEST(ColumnStatisticsTest, WhatNoDoubleHoldsIsNotGiven) {
    const double huge = std::numeric_limits<double>::max();
    const ColumnStatistics spread = DescribeColumn({huge, huge});
    EXPECT_EQ(spread.tests, 2);
    EXPECT_FALSE(spread.mean);
    EXPECT_FALSE(spread.deviation);
}

}  // namespace
}  // namespace kelvor::test
