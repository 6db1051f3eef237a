#include "design/calc/layered_structure.h"

#include <gtest/gtest.h>

#include "support/test_host.h"

namespace kelvor::test {
namespace {

class LayeredStructureTest : public testing::Test {
  protected:
    void Layer(int row, double coefficient, double drainage, double thickness) {
        program_.store().SetVarDim("LDLayerCoef", row, 1, coefficient);
        program_.store().SetVarDim("LDDrainCoef", row, 1, drainage);
        program_.store().SetVarDim("LDLayerThick", row, 1, thickness);
        program_.program.CalcCell("LDLayerStructNo", row, 1, "LDLayerStructNo");
    }

    double Cell(const char* name, int row) { return program_.store().GetVarDim(name, row, 1).value(); }

    TestProgram program_;
};

TEST_F(LayeredStructureTest, ALayersStructuralNumberIsTheProductOfItsThree) {
    Layer(1, 0.44, 1.0, 4.0);
    EXPECT_DOUBLE_EQ(Cell("LDLayerStructNo", 1), 1.76);
    Layer(2, 0.14, 0.8, 10.0);
    EXPECT_DOUBLE_EQ(Cell("LDLayerStructNo", 2), 1.12);
}

TEST_F(LayeredStructureTest, TheSumTakesEveryLayerAndIsZeroForNone) {
    program_.program.CalcField("SSN", "SSN");
    ASSERT_TRUE(program_.store().FindCell("SSN", 1, 1)->number.has_value());
    EXPECT_EQ(program_.Get("SSN"), 0.0);
    Layer(1, 0.44, 1.0, 4.0);
    Layer(6, 0.10, 1.0, 12.0);
    program_.program.CalcField("SSN", "SSN");
    EXPECT_DOUBLE_EQ(program_.Get("SSN"), 1.76 + 1.2);
}

TEST_F(LayeredStructureTest, TheAdditionalThicknessIsMultipliedByTheDrainageCoefficient) {
    program_.Set("SN", 4.0);
    Layer(1, 0.44, 1.0, 4.0);
    Layer(2, 0.14, 0.8, 10.0);
    program_.program.CalcCell("LDAdditThick", 2, 1, "LDAdditThick");
    EXPECT_DOUBLE_EQ(Cell("LDAdditThick", 2), (4.0 - 1.76 - 1.12) / 0.14 * 0.8);
}

TEST_F(LayeredStructureTest, ALayerWithoutACoefficientGetsNoAdditionalThickness) {
    program_.Set("SN", 4.0);
    Layer(1, 0.0, 1.0, 4.0);
    Layer(2, 0.14, 0.0, 4.0);
    for (const int row : {1, 2}) {
        program_.program.CalcCell("LDAdditThick", row, 1, "LDAdditThick");
        EXPECT_FALSE(program_.store().FindCell("LDAdditThick", row, 1)->IsFilled());
    }
}

}  // namespace
}  // namespace kelvor::test
