// A row of deflections of a bare slab.

#include "ndt/calc/rigid_backcalculation.h"
#include "ndt/calc/slab_basin.h"
#include "ndt_fixture.h"

namespace kelvor::test {
namespace {

class RigidTest : public NdtTest {
  protected:
    RigidTest() {
        Set({{"Radius", 5.9}, {"Poisson", 0.15}, {"EXISTDEPTH", 9.0}});
        SetRow(4, {{"NDTLOAD", 9000.0}, {"D0", 4.0}, {"D12", 3.4}, {"D24", 2.7}, {"D36", 2.0}});
    }

    void CalcRow(int row) {
        for (const char* key : {"AREA", "BACKL", "DYNK", "STATK", "NDTE"}) Calc(key, row);
    }
};

TEST_F(RigidTest, ARowGoesFromItsDeflectionsToTheModulusOfTheSlab) {
    CalcRow(4);
    const double area = 6.0 * (1.0 + 2.0 * 0.85 + 2.0 * 0.675 + 0.5);
    EXPECT_NEAR(Cell("AREA", 4).value(), area, 1e-13);
    const double radius = RadiusOfStiffness(Cell("AREA", 4).value()).value().value();
    EXPECT_EQ(Cell("BACKL", 4), radius);
    EXPECT_EQ(Cell("DYNK", 4), DynamicK(9000.0, 4.0, radius, 5.9).value());
    EXPECT_EQ(Cell("STATK", 4), Cell("DYNK", 4).value() / 2.0);
    EXPECT_EQ(Cell("NDTE", 4), SlabModulus(0.15, 9.0, radius, Cell("DYNK", 4).value()).value())
        << "with the dynamic k";
    for (const char* column : {"AREA", "BACKL", "DYNK", "STATK", "NDTE"}) {
        EXPECT_EQ(Cell(column, 3), std::nullopt) << column;
    }
    // None of them lies at a bound.
    EXPECT_GT(radius, 1.0);
    EXPECT_LT(radius, 200.0);
    EXPECT_GT(Cell("NDTE", 4).value(), 100.0);
    EXPECT_LT(Cell("NDTE", 4).value(), 10'000.0);
}

TEST_F(RigidTest, WithoutADeflectionTheWholeRowIsEmptied) {
    for (const char* missing : {"D0", "D12", "D24", "D36"}) {
        CalcRow(4);
        ASSERT_TRUE(Cell("NDTE", 4).has_value());
        const double value = Cell(missing, 4).value();
        SetRow(4, {{missing, 0.0}});
        CalcRow(4);
        for (const char* column : {"AREA", "BACKL", "DYNK", "STATK", "NDTE"}) {
            EXPECT_EQ(Cell(column, 4), std::nullopt) << column << " without " << missing;
        }
        SetRow(4, {{missing, value}});
    }
}

TEST_F(RigidTest, ADynamicKNeedsItsOtherInputsToo) {
    CalcRow(4);
    for (const char* missing : {"NDTLOAD", "D0", "D12", "D24", "D36", "BACKL"}) {
        const double value = Cell(missing, 4).value();
        ASSERT_TRUE(Calc("DYNK", 4).has_value());
        Clear(missing, 4);
        EXPECT_EQ(Calc("DYNK", 4), std::nullopt) << missing;
        SetRow(4, {{missing, value}});
    }
    ASSERT_TRUE(Calc("DYNK", 4).has_value());
    Set({{"Radius", 0.0}});
    EXPECT_EQ(Calc("DYNK", 4), std::nullopt);
}

TEST_F(RigidTest, AnAreaAboveThatOfAnEvenBasinHasNoRadius) {
    SetRow(4, {{"D12", 14.0}, {"D24", 13.0}, {"D36", 12.0}});
    CalcRow(4);
    EXPECT_GT(Cell("AREA", 4).value(), 36.0);
    EXPECT_EQ(Cell("BACKL", 4), std::nullopt);
    SetRow(4, {{"D12", 4.0}, {"D24", 4.0}, {"D36", 4.0}});
    CalcRow(4);
    EXPECT_EQ(Cell("AREA", 4), 36.0);
    EXPECT_EQ(Cell("BACKL", 4), std::nullopt);
}

TEST_F(RigidTest, AVeryStiffBasinHasTheLargestRadius) {
    SetRow(4, {{"D12", 4.0}, {"D24", 4.0}, {"D36", 3.9996}});
    CalcRow(4);
    EXPECT_LT(Cell("AREA", 4).value(), 36.0);
    EXPECT_EQ(Cell("BACKL", 4), 200.0);
}

TEST_F(RigidTest, ADynamicKAboveItsBoundIsHeldAndSoIsTheStaticOne) {
    SetRow(4, {{"BACKL", 20.0}, {"D0", 0.46}});  // some 6,000 without the bound
    EXPECT_EQ(Calc("DYNK", 4), 4000.0);
    EXPECT_EQ(Calc("STATK", 4), 2000.0);
}

TEST_F(RigidTest, TheStaticKIsHalfTheDynamicOne) {
    SetRow(4, {{"DYNK", 30.0}});
    EXPECT_EQ(Calc("STATK", 4), 15.0);
    SetRow(4, {{"DYNK", 10.0}});
    EXPECT_EQ(Calc("STATK", 4), 10.0);
    SetRow(4, {{"DYNK", 0.0}});
    EXPECT_EQ(Calc("STATK", 4), std::nullopt);
    Calc("STATK", 4);
    Clear("DYNK", 4);
    EXPECT_EQ(Calc("STATK", 4), std::nullopt);
}

TEST_F(RigidTest, AModulusOfTheSlabNeedsItsFourInputs) {
    CalcRow(4);
    for (const char* missing : {"BACKL", "DYNK"}) {
        const double value = Cell(missing, 4).value();
        ASSERT_TRUE(Calc("NDTE", 4).has_value());
        Clear(missing, 4);
        EXPECT_EQ(Calc("NDTE", 4), std::nullopt) << missing;
        SetRow(4, {{missing, value}});
    }
    for (const char* missing : {"Poisson", "EXISTDEPTH"}) {
        const double value = program_.Get(missing);
        ASSERT_TRUE(Calc("NDTE", 4).has_value());
        Set({{missing, 0.0}});
        EXPECT_EQ(Calc("NDTE", 4), std::nullopt) << missing;
        Set({{missing, value}});
    }
}

TEST_F(RigidTest, ResultsGoToTheTargetNamedButTheModulusOfTheSlabToItsOwn) {
    CalcRow(4);
    for (const char* key : {"AREA", "BACKL", "DYNK", "STATK"}) {
        program_.program.CalcCell("DR", 4, 1, key);
        EXPECT_EQ(Cell("DR", 4), Cell(key, 4)) << key;
    }
    Clear("DR", 4);
    const std::optional<double> modulus = Cell("NDTE", 4);
    Clear("NDTE", 4);
    program_.program.CalcCell("DR", 4, 1, "NDTE");
    EXPECT_EQ(Cell("NDTE", 4), modulus);
    EXPECT_EQ(Cell("DR", 4), std::nullopt);
}

TEST_F(RigidTest, TheTargetNamedIsWhatIsEmptied) {
    CalcRow(4);
    SetRow(4, {{"D0", 0.0}, {"AREA", 0.0}});
    Set({{"Poisson", 0.0}});
    const std::optional<double> modulus = Cell("NDTE", 4);
    for (const char* key : {"AREA", "BACKL", "DYNK", "NDTE"}) {
        SetRow(4, {{"DR", 7.0}});
        program_.program.CalcCell("DR", 4, 1, key);
        EXPECT_EQ(Cell("DR", 4), std::nullopt) << key;
    }
    EXPECT_EQ(Cell("NDTE", 4), modulus);
}

TEST_F(RigidTest, AFaultLeavesWhatWasThere) {
    CalcRow(4);
    const std::optional<double> k = Cell("DYNK", 4);
    const std::optional<double> modulus = Cell("NDTE", 4);
    SetRow(4, {{"BACKL", -20.0}});  // no logarithm
    EXPECT_EQ(Calc("DYNK", 4), k);
    SetRow(4, {{"BACKL", 1e100}});
    EXPECT_EQ(Calc("NDTE", 4), modulus);
    EXPECT_TRUE(program_.host.record.TakeTexts().empty());
}

TEST_F(RigidTest, OnlyTheDynamicKEndsAFaultItself) {
    CalcContext context = program_.program.state().MakeCalcContext();
    SetRow(4, {{"BACKL", -20.0}});
    EXPECT_NO_THROW(CalcDynamicK(context, "DYNK", 4, 1));
    SetRow(4, {{"BACKL", 1e100}, {"DYNK", 200.0}});
    EXPECT_THROW(CalcSlabModulus(context, "NDTE", 4, 1), ArithmeticFault);
}

}  // namespace
}  // namespace kelvor::test
