#include "rehab/calc/joint_factor.h"

#include <gtest/gtest.h>

namespace kelvor::test {
namespace {

/// The factor of a survey that counted joints alone.
double Factor(FjcCurve curve, double joints) {
    return EvaluateFjc({.joints = joints, .cracks = {}, .punchouts = {}, .expansionJoints = {}}, curve, 0.7)
        .factor.value();
}

struct Row {
    double total, factor;
};

TEST(JointFactorTest, ABondedOverlayFollowsTheSteeperCurve) {
    for (const Row& row :
         {Row{0.0, 1.0}, Row{1.0, 0.99768}, Row{50.0, 0.884}, Row{135.0, 0.6868}, Row{136.0, 0.6848},
          Row{200.0, 0.56}, Row{205.0, 0.55025}, Row{206.0, 0.55}, Row{300.0, 0.55}, Row{1e6, 0.55}}) {
        EXPECT_NEAR(Factor(FjcCurve::Bonded, row.total), row.factor, 1e-15 * (row.total + 1.0)) << row.total;
    }
    // 135.5 lies on the second line: 0.95 - 0.264225.
    EXPECT_NEAR(Factor(FjcCurve::Bonded, 135.5), 0.685775, 1e-14);
}

TEST(JointFactorTest, AnUnbondedOverlayFollowsTheFlatterCurve) {
    for (const Row& row :
         {Row{0.0, 1.0}, Row{10.0, 0.9894}, Row{35.0, 0.9629}, Row{36.0, 0.96314}, Row{100.0, 0.9385},
          Row{199.0, 0.900385}, Row{200.0, 0.9}, Row{201.0, 0.9}, Row{1000.0, 0.9}}) {
        EXPECT_NEAR(Factor(FjcCurve::Unbonded, row.total), row.factor, 1e-14) << row.total;
    }
    EXPECT_EQ(Factor(FjcCurve::Unbonded, 1000.0), 0.9);
}

TEST(JointFactorTest, EveryCountIsPartOfTheTotal) {
    const FjcSurvey survey =
        EvaluateFjc({.joints = 1.0, .cracks = 20.0, .punchouts = 300.0, .expansionJoints = 4000.0},
                    FjcCurve::Bonded, 0.7);
    EXPECT_EQ(survey.total.value(), 4321.0);
    EXPECT_EQ(survey.counts.punchouts.value(), 300.0);
}

TEST(JointFactorTest, AnUnbondedOverlayCountsNoPunchouts) {
    for (const double punchouts : {0.0, 5.0, 5000.0}) {
        const FjcSurvey survey =
            EvaluateFjc({.joints = 5.0, .cracks = 6.0, .punchouts = punchouts, .expansionJoints = 7.0},
                        FjcCurve::Unbonded, 0.7);
        EXPECT_EQ(survey.counts.punchouts.value(), 0.0);
        EXPECT_EQ(survey.total.value(), 18.0);
        EXPECT_NEAR(survey.factor.value(), 0.98092, 1e-15);
    }
}

TEST(JointFactorTest, ANegativeTotalKeepsTheFactorOfBeforeHeldToTheLeast) {
    const FjcCounts negative = {.joints = 5.0, .cracks = -6.0, .punchouts = {}, .expansionJoints = {}};
    EXPECT_EQ(EvaluateFjc(negative, FjcCurve::Bonded, 0.7).total.value(), -1.0);
    EXPECT_EQ(EvaluateFjc(negative, FjcCurve::Bonded, 0.7).factor.value(), 0.7);
    EXPECT_EQ(EvaluateFjc(negative, FjcCurve::Bonded, 0.0).factor.value(), 0.55);
    EXPECT_EQ(EvaluateFjc(negative, FjcCurve::Unbonded, 0.95).factor.value(), 0.95);
    EXPECT_EQ(EvaluateFjc(negative, FjcCurve::Unbonded, 0.7).factor.value(), 0.9);
}

}  // namespace
}  // namespace kelvor::test
