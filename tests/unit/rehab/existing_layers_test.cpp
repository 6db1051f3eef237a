#include "rehab_fixture.h"

namespace kelvor::test {
namespace {

class ExistingLayersTest : public RehabTest {
  protected:
    double Layer(int row, double thickness, double drainage, double coefficient) {
        store().SetVarDim("EXISTLT", row, 1, thickness);
        store().SetVarDim("EXISTDC", row, 1, drainage);
        store().SetVarDim("ACSURFLC", row, 1, coefficient);
        program_.program.CalcCell("EXISTEFSN", row, 1, "EXISTEFSN");
        return store().GetVarDim("EXISTEFSN", row, 1).value();
    }
};

TEST_F(ExistingLayersTest, ALayerIsThicknessTimesDrainageTimesCoefficientWithoutBounds) {
    EXPECT_DOUBLE_EQ(Layer(1, 4.0, 1.0, 0.35), 1.4);
    EXPECT_DOUBLE_EQ(Layer(2, 10.0, 0.8, 0.11), 0.88);
    EXPECT_DOUBLE_EQ(Layer(3, 1000.0, 1.2, 0.5), 600.0);
    EXPECT_DOUBLE_EQ(Layer(4, -2.0, 1.0, 0.5), -1.0);
}

TEST_F(ExistingLayersTest, ALayerWithoutACoefficientHasAZero) {
    EXPECT_EQ(Layer(1, 4.0, 1.0, 0.0), 0.0);
    store().SetVarDim("EXISTLT", 2, 1, 8.0);
    program_.program.CalcCell("EXISTEFSN", 2, 1, "EXISTEFSN");
    EXPECT_EQ(store().FindCell("EXISTEFSN", 2, 1)->number, 0.0) << "written, not empty";
    EXPECT_FALSE(store().FindCell("EXISTEFSN", 3, 1)->IsFilled());
}

TEST_F(ExistingLayersTest, ALayerGoesToItsRowOfTheTargetNamed) {
    Layer(3, 5.0, 1.0, 0.2);
    program_.program.CalcCell("ACSURFLC", 3, 1, "EXISTEFSN");
    EXPECT_DOUBLE_EQ(store().GetVarDim("ACSURFLC", 3, 1).value(), 1.0);
    EXPECT_THROW(program_.program.CalcCell("EXISTEFSN", 11, 1, "EXISTEFSN"), ProgramStop);
    EXPECT_THROW(program_.program.CalcCell("EXISTEFSN", 1, 2, "EXISTEFSN"), ProgramStop);
}

TEST_F(ExistingLayersTest, ASeventhLayerCountsInTheSumOfAllButNotInThatOfSix) {
    double six = 0.0;
    for (int row = 1; row <= 6; ++row) six += Layer(row, 2.0 * row, 1.0, 0.07 * row);
    EXPECT_EQ(Calc("EXISTEFSNSUM"), six);
    EXPECT_EQ(Calc("SNEFFTOT"), six);
    const double seventh = Layer(7, 3.0, 1.0, 0.11);
    EXPECT_DOUBLE_EQ(seventh, 0.33);
    EXPECT_EQ(Calc("EXISTEFSNSUM"), six);
    EXPECT_EQ(Calc("SNEFFTOT"), six + seventh);
}

TEST_F(ExistingLayersTest, WithoutLayersBothSumsAreZero) {
    EXPECT_EQ(Calc("EXISTEFSNSUM", {{"EXISTEFSNSUM", 7.0}}), 0.0);
    EXPECT_EQ(Calc("SNEFFTOT", {{"SNEFFTOT", 7.0}}), 0.0);
}

TEST_F(ExistingLayersTest, AProductBeyondADoubleLeavesTheCell) {
    Layer(1, 4.0, 1.0, 0.35);
    EXPECT_DOUBLE_EQ(Layer(1, 1e200, 1e200, 0.0), 1.4) << "the first product is too large";
    EXPECT_TRUE(program_.host.record.TakeTexts().empty());
}

}  // namespace
}  // namespace kelvor::test
