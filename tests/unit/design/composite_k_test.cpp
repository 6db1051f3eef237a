#include "design/calc/composite_k.h"

#include <gtest/gtest.h>

#include <cmath>

namespace kelvor {
namespace {

/// The same fits, written anew from the published exponents as powers and products of the inputs.
double WithSubbase(double soil, double subbase, double inches) {
    const double s = std::log(inches);
    return std::exp(-2.807) * std::pow(inches, 0.1253 * s) * std::pow(soil, 1.062) *
           std::pow(subbase, 0.1282 * s) * std::pow(inches, -0.4144) * std::pow(subbase, -0.0581) *
           std::pow(soil, -0.1317 * s);
}

double WithRigidLayer(double k, double soil, double feet) {
    const double d = std::log(12.0 * feet);
    return std::exp(5.303) * std::pow(soil, 0.071 * d) * std::pow(k, 1.366) * std::pow(12.0 * feet, -0.9187) *
           std::pow(soil, -0.6837);
}

TEST(CompositeKTest, ASoilAloneIsDividedByItsRatio) {
    EXPECT_DOUBLE_EQ(*CompositeKEnglish({.roadbedModulus = 7000.0}), 7000.0 / 19.4);
    EXPECT_NEAR(*CompositeKEnglish({.roadbedModulus = 7000.0}), 360.8, 0.05);
}

TEST(CompositeKTest, WithoutASoilThereIsNone) {
    EXPECT_EQ(
        CompositeKEnglish({.subbaseModulus = 15000.0, .subbaseThickness = 6.0, .depthToFoundation = 5.0}),
        std::nullopt);
    EXPECT_EQ(CompositeKMetric({.lossOfSupport = 1.0}), std::nullopt);
}

TEST(CompositeKTest, SubbaseRigidLayerAndLossOfSupportCountOneAfterTheOther) {
    const double soil = 7000.0;
    const double subbase = WithSubbase(soil, 15000.0, 6.0);
    const double rigid = WithRigidLayer(subbase, soil, 5.0);
    SubgradeLayers layers{.roadbedModulus = soil, .subbaseModulus = 15000.0, .subbaseThickness = 6.0};
    EXPECT_NEAR(*CompositeKEnglish(layers), subbase, subbase * 1e-12);
    EXPECT_NEAR(subbase, 335.7, 0.05);
    layers.depthToFoundation = 5.0;
    EXPECT_NEAR(*CompositeKEnglish(layers), rigid, rigid * 1e-12);
    EXPECT_NEAR(rigid, 406.3, 0.05);
    const double exponents[] = {1.0, 0.795, 0.61, 0.47, 1.0};
    for (int category = 0; category < 5; ++category) {
        layers.lossOfSupport = category;
        const double expected = std::pow(rigid, exponents[category]);
        EXPECT_NEAR(*CompositeKEnglish(layers), expected, expected * 1e-12) << "category " << category;
    }
}

TEST(CompositeKTest, ARigidLayerCountsWithoutASubbase) {
    const double expected = WithRigidLayer(7000.0 / 19.4, 7000.0, 5.0);
    EXPECT_NEAR(*CompositeKEnglish({.roadbedModulus = 7000.0, .depthToFoundation = 5.0}), expected,
                expected * 1e-12);
}

TEST(CompositeKTest, HalfASubbaseCountsForNothing) {
    EXPECT_DOUBLE_EQ(*CompositeKEnglish({.roadbedModulus = 7000.0, .subbaseModulus = 15000.0}),
                     7000.0 / 19.4);
    EXPECT_DOUBLE_EQ(*CompositeKEnglish({.roadbedModulus = 7000.0, .subbaseThickness = 6.0}), 7000.0 / 19.4);
}

TEST(CompositeKTest, AStepThatFaultsLeavesTheResultOfTheOneBefore) {
    EXPECT_DOUBLE_EQ(*CompositeKEnglish({.roadbedModulus = 7000.0, .depthToFoundation = -1.0}),
                     7000.0 / 19.4);
    EXPECT_DOUBLE_EQ(*CompositeKEnglish({.roadbedModulus = -7000.0, .lossOfSupport = 1.0}), -7000.0 / 19.4);
    const SubgradeLayers negative{.roadbedModulus = 7000.0, .subbaseModulus = -1.0, .subbaseThickness = 6.0};
    EXPECT_DOUBLE_EQ(*CompositeKEnglish(negative), 7000.0 / 19.4);
}

TEST(CompositeKTest, InMetricUnitsTheSoilAloneCounts) {
    EXPECT_DOUBLE_EQ(*CompositeKMetric({.roadbedModulus = 48.0,
                                        .subbaseModulus = 100.0,
                                        .subbaseThickness = 150.0,
                                        .depthToFoundation = 1.5,
                                        .lossOfSupport = 2.0}),
                     48.0 / 0.477);
}

}  // namespace
}  // namespace kelvor
