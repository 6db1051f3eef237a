// The effective modulus of a flexible pavement, by bisection.

#include <random>

#include "ndt/calc/two_layer_deflection.h"
#include "ndt_fixture.h"
#include "reference_bisection.h"

namespace kelvor::test {
namespace {

constexpr FlexibleRow kRow = {5.9, 9000.0, 4950.0, 0.33, 12.0, 20.0};

class PavementModulusTest : public NdtTest {
  protected:
    /// What a row gives, from cells that hold it.
    std::optional<double> Modulus(const FlexibleRow& row) {
        Set({{"Radius", row.radius}, {"NDTRMC", row.correction}, {"NDTEFFD", row.thickness}});
        SetRow(1, {{"NDTLOADF", row.load}, {"NDTRM", row.subgradeModulus}, {"D0F", row.deflection}});
        return Calc("NDTEFFEP", 1);
    }
};

TEST_F(PavementModulusTest, ADeflectionByTheEquationGivesItsModulusBack) {
    for (const double modulus : {20'000.0, 50'000.0, 150'000.0, 400'000.0}) {
        FlexibleRow row = kRow;
        row.deflection = ReferenceDeflection(row, modulus);
        const double found = Modulus(row).value();
        EXPECT_LT(std::fabs(ReferenceDeflection(row, found) - row.deflection), 0.01) << modulus;
        EXPECT_NEAR(found, modulus, 0.01 * modulus);
    }
}

TEST_F(PavementModulusTest, TheEquationIsTheGuidesToTheLastDigitOfPi) {
    // d0 = 1.5 p a (1 / (MR root(1 + (D/a cbrt(Ep/MR))^2)) + (1 - 1 / root(1 + (D/a)^2)) / Ep), in inches
    const double a = 5.9;
    const double pressure = 9000.0 / (M_PI * a * a);
    for (const double Ep : {10'000.0, 120'000.0, 2'000'000.0}) {
        const double upper = (1.0 - 1.0 / std::hypot(1.0, 12.0 / a)) / Ep;
        const double lower = 1.0 / (15'000.0 * std::hypot(1.0, 12.0 / a * std::cbrt(Ep / 15'000.0)));
        const double mils = 1000.0 * 1.5 * pressure * a * (upper + lower);
        const TwoLayerPavement pavement = {5.9, 9000.0, 15'000.0, 12.0};
        EXPECT_NEAR(CenterDeflection(pavement, Ep).value(), mils, 3e-8 * mils) << Ep;
    }
}

TEST_F(PavementModulusTest, TheSearchIsThatOfAnIndependentOneBitForBit) {
    std::mt19937 random(1993);
    const auto between = [&](double low, double high) {
        return low + (high - low) * (static_cast<double>(random()) / 4294967296.0);
    };
    int converged = 0;
    int exhausted = 0;
    for (int i = 0; i < 500; ++i) {
        const FlexibleRow row = {between(3.0, 9.0), between(1000.0, 25000.0),       between(500.0, 30000.0),
                                 between(0.2, 1.0), std::round(between(0.0, 40.0)), between(2.0, 60.0)};
        const Bisection expected = ReferenceBisection(row);
        (expected.passes < 25 ? converged : exhausted) += 1;
        ASSERT_EQ(Modulus(row), expected.Ep) << "row " << i << " after " << expected.passes;
    }
    EXPECT_GT(converged, 100);
    EXPECT_GT(exhausted, 50);
}

TEST_F(PavementModulusTest, ADeflectionTooLargeEndsJustAboveTheLeastModulus) {
    FlexibleRow row = kRow;
    row.deflection = 500.0;
    const double modulus = Modulus(row).value();
    EXPECT_EQ(modulus, 5000.0 + 995000.0 / 33554432.0) << "25 halves";
    EXPECT_GT(modulus, 5000.0);
    EXPECT_TRUE(program_.host.record.TakeTexts().empty()) << "without a word";
}

TEST_F(PavementModulusTest, ADeflectionTooSmallEndsJustBelowTheLargestModulus) {
    FlexibleRow row = kRow;
    row.deflection = 0.1;
    EXPECT_EQ(Modulus(row), 2000000.0 - 1000000.0 / 33554432.0);
    row.deflection = 0.0;
    EXPECT_EQ(Modulus(row), 2000000.0 - 1000000.0 / 33554432.0) << "it is not asked for";
}

TEST_F(PavementModulusTest, TheSearchEndsAtOnceWhereTheFirstModulusFits) {
    FlexibleRow row = kRow;
    row.deflection = ReferenceDeflection(row, 1'000'000.0) + 0.009;
    EXPECT_EQ(Modulus(row), 1'000'000.0);
    row.deflection += 0.002;
    EXPECT_LT(Modulus(row), 1'000'000.0) << "a hundredth of a mil off";
    row.deflection -= 0.022;
    EXPECT_GT(Modulus(row), 1'000'000.0);
}

TEST_F(PavementModulusTest, APavementWithoutThicknessIsItsSubgrade) {
    FlexibleRow row = kRow;
    row.thickness = 0.0;
    const double deflection = 1000.0 * 1.5 * row.load / (3.1415926 * row.radius) / 15'000.0;
    row.deflection = deflection;
    EXPECT_EQ(Modulus(row), 1'000'000.0) << "it fits at once";
    row.deflection = deflection + 1.0;
    EXPECT_EQ(Modulus(row), 5000.0 + 995000.0 / 33554432.0) << "no modulus ever fits";
}

TEST_F(PavementModulusTest, AMissingInputEmptiesTheCell) {
    for (double FlexibleRow::*const input : {&FlexibleRow::radius, &FlexibleRow::load,
                                             &FlexibleRow::subgradeModulus, &FlexibleRow::correction}) {
        ASSERT_TRUE(Modulus(kRow).has_value());
        FlexibleRow row = kRow;
        row.*input = 0.0;
        EXPECT_EQ(Modulus(row), std::nullopt);
    }
}

TEST_F(PavementModulusTest, AFaultLeavesTheLastModulusOfTheSearch) {
    FlexibleRow row = kRow;
    row.subgradeModulus = -4950.0;  // the cube root of a negative number
    EXPECT_EQ(Modulus(row), 1'000'000.0);
    row = kRow;
    row.subgradeModulus = 1e300;
    row.correction = 1e-300;
    EXPECT_EQ(Modulus(row), 1'000'000.0) << "the subgrade itself is beyond a double";
    EXPECT_TRUE(program_.host.record.TakeTexts().empty());
}

TEST_F(PavementModulusTest, TheSearchWorksInTheTargetNamed) {
    Modulus(kRow);
    const std::optional<double> found = Cell("NDTEFFEP", 1);
    Clear("NDTEFFEP", 1);
    program_.program.CalcCell("DR", 1, 1, "NDTEFFEP");
    EXPECT_EQ(Cell("DR", 1), found);
    EXPECT_EQ(Cell("NDTEFFEP", 1), std::nullopt);
}

}  // namespace
}  // namespace kelvor::test
