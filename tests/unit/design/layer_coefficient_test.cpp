#include "design/calc/layer_coefficient.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace kelvor {
namespace {

/// The modulus, psi, of a coefficient: the same fit turned round.
double ModulusOf(double coefficient) { return std::exp(coefficient / 0.171) * std::exp(1.784 / 0.171); }

TEST(LayerCoefficientTest, TheFitTurnedRoundGivesTheModulus) {
    for (int ksi = 100; ksi <= 500; ksi += 20) {
        const double psi = ModulusOf(AsphaltCoefficient(ksi).value());
        EXPECT_NEAR(psi, 1000.0 * ksi, 1e-7 * ksi) << ksi << " ksi";
    }
}

TEST(LayerCoefficientTest, ItIsThatOfTheFigure) {
    // The asphalt concrete of the AASHO Road Test: 450,000 psi and 0.44.
    EXPECT_NEAR(AsphaltCoefficient(450.0).value(), 0.44, 0.005);
    // By hand, with 11.5129 = 5 ln 10: 0.171 * 11.5129 - 1.784.
    EXPECT_NEAR(AsphaltCoefficient(100.0).value(), 0.1847, 0.00005);
}

TEST(LayerCoefficientTest, TwiceTheModulusAddsTheSameEverywhere) {
    const double step = 0.171 * std::log(2.0);
    for (const double ksi : {0.001, 1.0, 34.0, 100.0, 250.0, 5000.0}) {
        EXPECT_NEAR((AsphaltCoefficient(2.0 * ksi) - AsphaltCoefficient(ksi)).value(), step, 1e-12) << ksi;
    }
    EXPECT_DOUBLE_EQ(AsphaltCoefficient(0.001).value(), -1.784) << "1 psi";
}

TEST(LayerCoefficientTest, WithoutAModulusThereIsNone) {
    EXPECT_THROW(AsphaltCoefficient(0.0), ArithmeticFault);
    EXPECT_THROW(AsphaltCoefficient(-100.0), ArithmeticFault);
    EXPECT_THROW(AsphaltCoefficient(std::numeric_limits<double>::max()), ArithmeticFault)
        << "beyond it in psi";
}

TEST(LayerCoefficientTest, BelowTheFigureItFallsToNothing) {
    EXPECT_LT(AsphaltCoefficient(33.9).value(), 0.0);
    EXPECT_GT(AsphaltCoefficient(34.1).value(), 0.0);
}

}  // namespace
}  // namespace kelvor
