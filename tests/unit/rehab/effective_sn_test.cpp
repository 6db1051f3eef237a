#include "rehab/calc/effective_sn.h"

#include <cmath>

#include "rehab_fixture.h"

namespace kelvor::test {
namespace {

class EffectiveSNTest : public RehabTest {
  protected:
    double Choose(double byDeflections, double bySurvey) {
        return Calc("ACACEFFSN", {{"NDTEFFSN", byDeflections}, {"CONDEFFSN", bySurvey}});
    }
};

TEST_F(EffectiveSNTest, TheSmallerOfBothGoverns) {
    EXPECT_EQ(Choose(3.0, 2.5), 2.5);
    EXPECT_EQ(Choose(2.5, 3.0), 2.5);
    EXPECT_EQ(Choose(3.0, 3.0), 3.0);
}

TEST_F(EffectiveSNTest, OneAloneCounts) {
    EXPECT_EQ(Choose(0.0, 2.5), 2.5);
    EXPECT_EQ(Choose(3.5, 0.0), 3.5);
}

TEST_F(EffectiveSNTest, WithoutOrWithANegativeOneThereIsNone) {
    struct Row {
        double byDeflections, bySurvey;
    };
    for (const Row& row :
         {Row{0.0, 0.0}, Row{-1.0, -2.0}, Row{-1.0, 3.0}, Row{3.0, -1.0}, Row{0.0, -1.0}, Row{-1.0, 0.0}}) {
        Set({{"ACACEFFSN", 9.0}});
        EXPECT_EQ(Choose(row.byDeflections, row.bySurvey), 0.0) << row.byDeflections << " " << row.bySurvey;
    }
}

TEST_F(EffectiveSNTest, ByDeflectionsItIsThicknessTimesTheCubeRootOfTheModulus) {
    EXPECT_NEAR(EffectiveSNFromDeflections(10.0, 100'000.0).value(), 2.09, 0.005);
    for (const auto& [thickness, modulus] : {std::pair(10.0, 100'000.0), {14.5, 267'000.0}, {7.0, 8.0}}) {
        const double expected = 0.0045 * thickness * std::cbrt(modulus);
        EXPECT_NEAR(EffectiveSNFromDeflections(thickness, modulus).value(), expected, 1e-14 * expected);
    }
    EXPECT_DOUBLE_EQ(EffectiveSNFromDeflections(1000.0, 8.0).value(), 9.0) << "0.0045 * 1000 * 2";
}

TEST_F(EffectiveSNTest, ByDeflectionsItIsZeroWithoutAnInputAndAFaultForANegativeModulus) {
    EXPECT_EQ(EffectiveSNFromDeflections(0.0, 100'000.0).value(), 0.0);
    EXPECT_EQ(EffectiveSNFromDeflections(10.0, 0.0).value(), 0.0);
    EXPECT_THROW(EffectiveSNFromDeflections(10.0, -1.0), ArithmeticFault);
}

}  // namespace
}  // namespace kelvor::test
