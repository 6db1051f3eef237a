// A row of deflections of asphalt over a slab.

#include <cmath>

#include "ndt/calc/composite_backcalculation.h"
#include "ndt/calc/slab_basin.h"
#include "ndt_fixture.h"

namespace kelvor::test {
namespace {

class CompositeTest : public NdtTest {
  protected:
    CompositeTest() {
        Set({{"Radius", 5.9}, {"Poisson", 0.15}, {"EXISTDEPTH", 9.0}, {"NDTEAC", 500'000.0}});
        Set({{"ACACPCACT", 4.0}, {"BOND", 1.0}});
        SetRow(2, {{"NDTLOADC", 9000.0}, {"D0C", 4.5}, {"D12C", 3.4}, {"D24C", 2.7}, {"D36C", 2.0}});
    }

    double D0() {
        const CalcContext context = program_.program.state().MakeCalcContext();
        return CorrectedD0(context, 2, 1).value();
    }

    void CalcRow() {
        for (const char* key : {"AREAC", "BACKLC", "DYNKC", "STATKC", "NDTEC"}) Calc(key, 2);
    }
};

TEST_F(CompositeTest, TheCentralDeflectionLosesTheCompressionOfTheAsphalt) {
    const double logarithm = std::log(4.0 / 500'000.0);
    const double bonded = 121500.6 * std::exp(1.0798 * logarithm) - 0.0328;
    EXPECT_NEAR(D0(), 4.5 - bonded, 1e-12);
    EXPECT_NEAR(bonded, 0.35, 0.01);
    Set({{"BOND", 0.0}});
    const double unbonded = 38687.2 * std::exp(0.94551 * logarithm) - 0.02132;
    EXPECT_NEAR(D0(), 4.5 - unbonded, 1e-12);
    EXPECT_GT(unbonded, bonded);
    Set({{"BOND", -1.0}});
    EXPECT_NEAR(D0(), 4.5 - bonded, 1e-12) << "any other value is a bond";
}

TEST_F(CompositeTest, WithoutAsphaltTheDeflectionGainsTheConstantOfTheRegression) {
    Set({{"ACACPCACT", 0.0}});
    EXPECT_DOUBLE_EQ(D0(), 4.5 + 0.0328);
    Set({{"BOND", 0.0}});
    EXPECT_DOUBLE_EQ(D0(), 4.5 + 0.02132);
}

TEST_F(CompositeTest, TheCorrectedDeflectionIsZeroWithoutModulusOrLoad) {
    Set({{"NDTEAC", 0.0}});
    EXPECT_EQ(D0(), 0.0);
    Set({{"NDTEAC", 500'000.0}});
    Clear("NDTLOADC", 2);
    EXPECT_EQ(D0(), 0.0);
}

TEST_F(CompositeTest, ARowGoesFromItsDeflectionsToTheModulusOfTheSlab) {
    CalcRow();
    const double d0 = D0();
    EXPECT_EQ(Cell("AREAC", 2), BasinArea(d0, 3.4, 2.7, 2.0).value()) << "the outer ones are not corrected";
    const double radius = RadiusOfStiffness(Cell("AREAC", 2).value()).value().value();
    EXPECT_EQ(Cell("BACKLC", 2), radius);
    EXPECT_EQ(Cell("DYNKC", 2), DynamicK(9000.0, d0, radius, 5.9).value());
    EXPECT_EQ(Cell("STATKC", 2), Cell("DYNKC", 2).value() / 2.0);
    EXPECT_EQ(Cell("NDTEC", 2), SlabModulus(0.15, 9.0, radius, Cell("DYNKC", 2).value()).value());
    EXPECT_GT(Cell("NDTEC", 2).value(), 100.0);
    EXPECT_LT(Cell("NDTEC", 2).value(), 10'000.0);
}

TEST_F(CompositeTest, TheDynamicKIsThePrintedSeriesOfSteps) {
    CalcRow();
    const double d = D0();
    const double l = Cell("BACKLC", 2).value();
    const double L = std::log(5.9 / (2.0 * l));
    const double S = 9000.0 / (l * l * (d * 0.008));
    const double T = (L + 0.05772156649 - 1.25) * (1.0 / 6.283184);
    EXPECT_NEAR(Cell("DYNKC", 2).value(), ((5.9 / l) * (5.9 / l) * T + 1.0) * S, 1e-12 * S);
}

TEST_F(CompositeTest, WithoutAnInputTheAreaIsEmptied) {
    for (const char* missing : {"NDTLOADC", "D0C", "D12C", "D24C", "D36C"}) {
        const double value = Cell(missing, 2).value();
        ASSERT_TRUE(Calc("AREAC", 2).has_value());
        Clear(missing, 2);
        EXPECT_EQ(Calc("AREAC", 2), std::nullopt) << missing;
        SetRow(2, {{missing, value}});
    }
}

TEST_F(CompositeTest, WithoutAModulusOfTheAsphaltTheAreaStaysAndTheDynamicKIsEmptied) {
    CalcRow();
    const std::optional<double> area = Cell("AREAC", 2);
    Set({{"NDTEAC", 0.0}});
    EXPECT_EQ(Calc("AREAC", 2), area);
    EXPECT_EQ(Calc("DYNKC", 2), std::nullopt);
    EXPECT_TRUE(program_.host.record.TakeTexts().empty());
}

TEST_F(CompositeTest, ACorrectionLargerThanTheDeflectionMakesTheLeastArea) {
    Set({{"NDTEAC", 100'000.0}, {"ACACPCACT", 12.0}});
    ASSERT_LT(D0(), 0.0);
    EXPECT_EQ(Calc("AREAC", 2), 0.01);
}

TEST_F(CompositeTest, AnAreaOutsideItsRangeHasNoRadius) {
    for (const double area : {0.0, 36.0, 40.0}) {
        SetRow(2, {{"AREAC", area}, {"BACKLC", 7.0}});
        EXPECT_EQ(Calc("BACKLC", 2), std::nullopt) << area;
    }
    SetRow(2, {{"AREAC", 35.999}});
    EXPECT_EQ(Calc("BACKLC", 2), 200.0);
}

TEST_F(CompositeTest, ADynamicKNeedsItsInputs) {
    CalcRow();
    for (const char* missing : {"NDTLOADC", "D12C", "D24C", "D36C", "BACKLC"}) {
        const double value = Cell(missing, 2).value();
        ASSERT_TRUE(Calc("DYNKC", 2).has_value());
        Clear(missing, 2);
        EXPECT_EQ(Calc("DYNKC", 2), std::nullopt) << missing;
        SetRow(2, {{missing, value}});
    }
    ASSERT_TRUE(Calc("DYNKC", 2).has_value());
    Set({{"Radius", 0.0}});
    EXPECT_EQ(Calc("DYNKC", 2), std::nullopt);
}

TEST_F(CompositeTest, TheStaticKIsHalfTheDynamicOne) {
    SetRow(2, {{"DYNKC", 4000.0}});
    EXPECT_EQ(Calc("STATKC", 2), 2000.0);
    SetRow(2, {{"DYNKC", 10.0}});
    EXPECT_EQ(Calc("STATKC", 2), 10.0);
    Clear("DYNKC", 2);
    EXPECT_EQ(Calc("STATKC", 2), std::nullopt);
}

TEST_F(CompositeTest, AModulusOfTheSlabNeedsItsFourInputs) {
    CalcRow();
    for (const char* missing : {"BACKLC", "DYNKC"}) {
        const double value = Cell(missing, 2).value();
        ASSERT_TRUE(Calc("NDTEC", 2).has_value());
        Clear(missing, 2);
        EXPECT_EQ(Calc("NDTEC", 2), std::nullopt) << missing;
        SetRow(2, {{missing, value}});
    }
    for (const char* missing : {"Poisson", "EXISTDEPTH"}) {
        const double value = program_.Get(missing);
        ASSERT_TRUE(Calc("NDTEC", 2).has_value());
        Set({{missing, 0.0}});
        EXPECT_EQ(Calc("NDTEC", 2), std::nullopt) << missing;
        Set({{missing, value}});
    }
}

TEST_F(CompositeTest, ThreeResultsGoToTheirOwnVariableAndBothKToTheTarget) {
    CalcRow();
    for (const char* key : {"AREAC", "BACKLC", "NDTEC"}) {
        const std::optional<double> value = Cell(key, 2);
        ASSERT_TRUE(value.has_value()) << key;
        Clear(key, 2);
        program_.program.CalcCell("DR", 2, 1, key);
        EXPECT_EQ(Cell(key, 2), value) << key;
        EXPECT_EQ(Cell("DR", 2), std::nullopt) << key;
    }
    for (const char* key : {"DYNKC", "STATKC"}) {
        program_.program.CalcCell("DR", 2, 1, key);
        EXPECT_EQ(Cell("DR", 2), Cell(key, 2)) << key;
    }
}

TEST_F(CompositeTest, WhatIsEmptiedIsAlwaysTheVariableOfTheRoutine) {
    struct Row {
        const char *key, *missing;
    };
    for (const Row& row : {Row{"AREAC", "D12C"}, Row{"BACKLC", "AREAC"}, Row{"DYNKC", "D12C"},
                           Row{"STATKC", "DYNKC"}, Row{"NDTEC", "DYNKC"}}) {
        SetRow(2, {{"D12C", 3.4}});
        CalcRow();
        ASSERT_TRUE(Cell(row.key, 2).has_value()) << row.key;
        SetRow(2, {{"DR", 7.0}});
        Clear(row.missing, 2);
        program_.program.CalcCell("DR", 2, 1, row.key);
        EXPECT_EQ(Cell(row.key, 2), std::nullopt) << row.key;
        EXPECT_EQ(Cell("DR", 2), 7.0) << row.key;
    }
}

TEST_F(CompositeTest, AFaultLeavesWhatWasThere) {
    CalcRow();
    const std::optional<double> area = Cell("AREAC", 2);
    const std::optional<double> k = Cell("DYNKC", 2);
    Set({{"ACACPCACT", -4.0}});  // no power
    EXPECT_EQ(Calc("AREAC", 2), area);
    EXPECT_EQ(Calc("DYNKC", 2), k);
}

}  // namespace
}  // namespace kelvor::test
