#include <algorithm>

#include "rehab_fixture.h"

namespace kelvor::test {
namespace {

class AsphaltOnConcreteTest : public RehabTest {
  protected:
    double OverlayOfSlab(double future, double effective) {
        Set({{"ACPCOLT", 99.0}});
        return Calc("ACPCOLT", {{"ACPCFUTD", future}, {"ACPCEFFD", effective}});
    }
    double OverlayOfComposite(double future, double effective, double effectiveOfSlab) {
        Set({{"ACACPCOLT", 99.0}});
        return Calc("ACACPCOLT",
                    {{"ACACPCFUTD", future}, {"ACACPCEFFD", effective}, {"ACPCEFFD", effectiveOfSlab}});
    }
};

/// The polynomial of the Guide, by Horner's rule.
double Factor(double lack) { return (0.0099 * lack - 0.1534) * lack + 2.2233; }

TEST_F(AsphaltOnConcreteTest, TheEffectiveSlabIsTheSlabTimesItsThreeFactors) {
    Set({{"EXISTDEPTH", 9.0}, {"ACPCFJC", 0.8}, {"ACPCFDUR", 0.9}, {"ACPCFFAT", 0.95}});
    EXPECT_NEAR(Calc("ACPCEFFD"), 6.156, 1e-14);
    EXPECT_EQ(Calc("ACPCEFFD", {{"ACPCFFAT", 0.0}}), 0.0) << "a factor that was not entered";
    EXPECT_EQ(Calc("ACPCEFFD", {{"ACPCFFAT", 1.0}, {"ACPCFDUR", 1.0}, {"ACPCFJC", 3.0}}), 20.0);
    EXPECT_EQ(Calc("ACPCEFFD", {{"ACPCFJC", -1.0}}), 0.0);
}

TEST_F(AsphaltOnConcreteTest, TheOverlayOfASlabIsWhatItLacksTimesTheFactor) {
    for (const double lack : {0.25, 1.0, 2.0, 3.7, 5.0, 8.0}) {
        EXPECT_NEAR(OverlayOfSlab(6.0 + lack, 6.0), lack * Factor(lack), 1e-12) << lack;
    }
    // 2 * (2.2233 + 0.0396 - 0.3068)
    EXPECT_NEAR(OverlayOfSlab(10.0, 8.0), 3.9122, 1e-12);
}

TEST_F(AsphaltOnConcreteTest, TheOverlayOfASlabIsHeldToItsBounds) {
    EXPECT_EQ(OverlayOfSlab(8.0, 8.0), 0.0);
    EXPECT_EQ(OverlayOfSlab(7.0, 8.0), 0.0) << "nothing is lacking";
    ASSERT_GT(20.0 * Factor(20.0), 30.0);
    EXPECT_EQ(OverlayOfSlab(20.0, 0.0), 30.0);
}

TEST_F(AsphaltOnConcreteTest, TheEffectiveCompositeIsHalfTheAsphaltAndTheSlab) {
    Set({{"ACACPCACT", 4.0}, {"ACACPCFAC", 0.9}});
    EXPECT_NEAR(Calc("ACACPCEFFD"), 1.8, 1e-15);
    Set({{"EXISTDEPTH", 8.0}, {"ACACPCFDUR", 0.95}, {"ACACPCFJC", 0.85}});
    EXPECT_NEAR(Calc("ACACPCEFFD"), 1.8 + 6.46, 1e-14);
}

TEST_F(AsphaltOnConcreteTest, WithoutAsphaltTheEffectiveCompositeIsTheSlabAloneAndZeroStaysZero) {
    Set({{"ACACPCACT", 0.0},
         {"ACACPCFAC", 0.9},
         {"EXISTDEPTH", 8.0},
         {"ACACPCFDUR", 1.0},
         {"ACACPCFJC", 0.75}});
    EXPECT_EQ(Calc("ACACPCEFFD"), 6.0);
    EXPECT_EQ(Calc("ACACPCEFFD", {{"ACACPCFDUR", 0.0}}), 0.0);
}

TEST_F(AsphaltOnConcreteTest, TheEffectiveCompositeIsHeldToItsBounds) {
    Set({{"ACACPCACT", 40.0}, {"ACACPCFAC", 1.0}});
    EXPECT_EQ(Calc("ACACPCEFFD"), 20.0) << "just at the bound";
    EXPECT_EQ(Calc("ACACPCEFFD", {{"ACACPCACT", 41.0}}), 20.0);
    EXPECT_EQ(Calc("ACACPCEFFD", {{"ACACPCACT", -1.0}}), 0.0);
}

TEST_F(AsphaltOnConcreteTest, TheOverlayOfACompositeMultipliesByTheLackOfTheSlabDesign) {
    for (const double effectiveOfSlab : {0.0, 5.0, 7.25}) {
        EXPECT_NEAR(OverlayOfComposite(9.0, 6.5, effectiveOfSlab),
                    std::min(30.0, (9.0 - effectiveOfSlab) * Factor(2.5)), 1e-12)
            << effectiveOfSlab;
    }
    EXPECT_NE(OverlayOfComposite(9.0, 6.5, 5.0), OverlayOfComposite(9.0, 6.5, 6.5));
}

TEST_F(AsphaltOnConcreteTest, TheOverlayOfACompositeIsHeldToItsBounds) {
    EXPECT_EQ(OverlayOfComposite(8.0, 6.0, 8.0), 0.0);
    EXPECT_EQ(OverlayOfComposite(8.0, 6.0, 9.0), 0.0);
    EXPECT_NEAR(OverlayOfComposite(8.0, 8.0, 6.0), 2.0 * 2.2233, 1e-14) << "a factor without a lack";
    EXPECT_EQ(OverlayOfComposite(20.0, 19.0, 0.0), 30.0);
}

}  // namespace
}  // namespace kelvor::test
