#include "ndt/calc/pavement_thickness.h"

#include "ndt_fixture.h"

namespace kelvor::test {
namespace {

class PavementThicknessTest : public NdtTest {
  protected:
    double Thickness() {
        CalcContext context = program_.program.state().MakeCalcContext();
        StorePavementThickness(context);
        return store().FindCell("NDTEFFD", 1, 1)->number.value();
    }
};

TEST_F(PavementThicknessTest, ItIsTheSumOfAllLayersInWholeInches) {
    SetRow(1, {{"EXISTLT", 4.2}});
    SetRow(2, {{"EXISTLT", 8.0}});
    EXPECT_EQ(Thickness(), 12.0);
    SetRow(9, {{"EXISTLT", 0.3}});  // below the rows that the screen of the layers shows
    EXPECT_EQ(Thickness(), 13.0) << "half an inch counts as one";
    SetRow(9, {{"EXISTLT", 1240.0}});
    EXPECT_EQ(Thickness(), 1252.0);
}

TEST_F(PavementThicknessTest, InMetricUnitsItIsStillWholeInches) {
    program_.units().SetMetric(true);
    SetRow(1, {{"EXISTLT", 4.4}});
    EXPECT_EQ(Thickness(), 4.0);
    EXPECT_EQ(program_.units().GetDisplayValue("NDTEFFD"), "102");  // 101.6 mm
}

TEST_F(PavementThicknessTest, WithoutLayersItIsZero) {
    Set({{"NDTEFFD", 7.0}});
    EXPECT_EQ(Thickness(), 0.0);
}

}  // namespace
}  // namespace kelvor::test
