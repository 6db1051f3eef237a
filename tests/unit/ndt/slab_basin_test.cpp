// The closed forms of a slab's deflection basin, against the equations written another way.

#include "ndt/calc/slab_basin.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace kelvor::test {
namespace {

TEST(BasinAreaTest, ItIsTheTrapezoidsOfTheBasinOverItsDepth) {
    // Three strips of 12 inches between the sensors.
    const double strips = 12.0 * ((10.0 + 8.5) / 2.0 + (8.5 + 6.7) / 2.0 + (6.7 + 5.1) / 2.0) / 10.0;
    EXPECT_NEAR(BasinArea(10.0, 8.5, 6.7, 5.1).value(), strips, 1e-13);
    EXPECT_EQ(BasinArea(7.0, 7.0, 7.0, 7.0).value(), 36.0);
}

TEST(BasinAreaTest, ItIsHeldToItsBoundsButZeroStays) {
    EXPECT_EQ(BasinArea(1.0, 10.0, 10.0, 10.0).value(), 99.99);
    EXPECT_EQ(BasinArea(-10.0, 8.0, 6.0, 4.0).value(), 0.01);
    EXPECT_NEAR(BasinArea(-100.0, 24.0, 22.0, 6.0).value(), 0.12, 1e-12);
    EXPECT_EQ(BasinArea(-4.0, 1.0, 1.0, 0.0).value(), 0.0);
    EXPECT_THROW(BasinArea(0.0, 8.0, 6.0, 4.0), ArithmeticFault);
}

TEST(RadiusOfStiffnessTest, ItSolvesTheEquationOfTheArea) {
    // AREA = 36 - 1812.2791333 exp(-2.55934 l^(1 / 4.387009))
    for (const double radius : {1.5, 10.0, 24.0, 40.0, 80.0, 150.0, 199.0}) {
        const double area = 36.0 - 1812.2791333 * std::exp(-2.55934 * std::pow(radius, 1.0 / 4.387009));
        if (area <= 0.0) continue;
        EXPECT_NEAR(RadiusOfStiffness(area).value().value(), radius, 1e-9 * radius) << area;
    }
    // By hand: AREA 29 gives ln(7 / 1812.2791333) = -5.5564, over -2.55934 2.1710, to the power 4.387009.
    EXPECT_NEAR(RadiusOfStiffness(29.0).value().value(), 29.99, 0.02);
}

TEST(RadiusOfStiffnessTest, AnAreaOutsideItsRangeHasNone) {
    for (const double area : {-1.0, 0.0, 36.0, 36.01, 99.99}) {
        EXPECT_FALSE(RadiusOfStiffness(area).has_value()) << area;
    }
    EXPECT_TRUE(RadiusOfStiffness(0.01).has_value());
    EXPECT_TRUE(RadiusOfStiffness(35.999).has_value());
}

TEST(RadiusOfStiffnessTest, AVeryStiffBasinIsHeldToTheUpperBound) {
    EXPECT_EQ(RadiusOfStiffness(35.9994).value().value(), 200.0);
    EXPECT_EQ(RadiusOfStiffness(35.9).value().value(), 200.0);
}

/// Westergaard's interior deflection, mils, with `constant` in the place of Euler's.
double InteriorDeflection(double load, double k, double l, double a, double constant) {
    const double bending = (std::log(a / (2.0 * l)) + constant - 1.25) / (2.0 * std::numbers::pi);
    return 1000.0 * load / (8.0 * k * l * l) * (1.0 + bending * (a / l) * (a / l));
}

TEST(DynamicKTest, ItGivesTheDeflectionOfWestergaardWithATenthOfEulersConstant) {
    for (const double k : {50.0, 200.0, 900.0}) {
        for (const double l : {20.0, 35.0, 60.0}) {
            const double d0 = InteriorDeflection(9000.0, k, l, 5.9, 0.057721566490);
            EXPECT_NEAR(DynamicK(9000.0, d0, l, 5.9).value(), k, 1e-6 * k) << k << " " << l;
        }
    }
    const double published = InteriorDeflection(9000.0, 200.0, 20.0, 5.9, 0.5772156649);
    EXPECT_LT(DynamicK(9000.0, published, 20.0, 5.9).value(), 199.0) << "the published k would be 200";
}

TEST(DynamicKTest, ItIsHeldToItsBounds) {
    const double d0 = InteriorDeflection(9000.0, 6000.0, 20.0, 5.9, 0.05772156649);
    EXPECT_EQ(DynamicK(9000.0, d0, 20.0, 5.9).value(), 4000.0);
    EXPECT_EQ(DynamicK(9000.0, 4000.0, 20.0, 5.9).value(), 10.0);
    EXPECT_EQ(DynamicK(9000.0, -5.0, 20.0, 5.9).value(), 10.0);
    EXPECT_THROW(DynamicK(9000.0, 5.0, -20.0, 5.9), ArithmeticFault);
    EXPECT_THROW(DynamicK(9000.0, 0.0, 20.0, 5.9), ArithmeticFault);
}

TEST(StaticKTest, ItIsHalfOfTheDynamicOneWithinItsBounds) {
    struct Row {
        double dynamicK, staticK;
    };
    for (const Row& row : {Row{300.0, 150.0}, Row{30.0, 15.0}, Row{20.0, 10.0}, Row{10.0, 10.0},
                           Row{4000.0, 2000.0}, Row{4001.0, 2000.0}, Row{0.0, 0.0}, Row{-5.0, 10.0}}) {
        EXPECT_EQ(StaticK(row.dynamicK).value(), row.staticK) << row.dynamicK;
    }
}

TEST(SlabModulusTest, ItHasTheRadiusOfRelativeStiffnessThatItCameFrom) {
    for (const double l : {25.0, 33.3, 39.0}) {
        const double modulus = 1000.0 * SlabModulus(0.15, 9.0, l, 250.0).value();  // psi
        const double rigidity = modulus * 9.0 * 9.0 * 9.0 / (12.0 * (1.0 - 0.15 * 0.15));
        EXPECT_NEAR(std::sqrt(std::sqrt(rigidity / 250.0)), l, 1e-12 * l);
    }
}

TEST(SlabModulusTest, ItIsHeldToItsBounds) {
    EXPECT_EQ(SlabModulus(0.15, 9.0, 100.0, 250.0).value(), 10'000.0);
    EXPECT_EQ(SlabModulus(0.15, 9.0, 5.0, 100.0).value(), 100.0);
    EXPECT_EQ(SlabModulus(1.0, 9.0, 35.0, 100.0).value(), 0.0) << "exactly 0 stays";
    EXPECT_THROW(SlabModulus(0.15, 0.0, 35.0, 100.0), ArithmeticFault);
}

}  // namespace
}  // namespace kelvor::test
