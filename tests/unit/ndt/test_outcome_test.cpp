#include "ndt/calc/test_outcome.h"

#include <gtest/gtest.h>

#include "ndt_fixture.h"

namespace kelvor::test {
namespace {

class TestOutcomeTest : public NdtTest {
  protected:
    TestOutcomeTest() {
        Set({{"NDTR", 36.0}, {"NDTRMC", 0.33}, {"Radius", 5.9}, {"NDTEFFD", 12.0}});
        SetRow(1, {{"NDTLOADF", 9000.0}, {"D0F", 18.0}, {"DR", 3.55}});
    }

    std::optional<SearchOutcome> Search() {
        Calc("NDTRM", 1);
        Calc("NDTEFFEP", 1);
        return Outcome();
    }

    std::optional<SearchOutcome> Outcome() {
        return OutcomeOfSearch(program_.program.state().MakeCalcContext(), 1, 1);
    }

    bool IsWithoutSolution() {
        return IsAreaWithoutSolution(program_.program.state().MakeCalcContext(), "AREA", 1, 1);
    }
};

TEST_F(TestOutcomeTest, AnOrdinaryTestConverges) {
    const auto outcome = Search();
    ASSERT_TRUE(outcome);
    EXPECT_TRUE(outcome->converged);
    EXPECT_TRUE(outcome->IsSound());
}

TEST_F(TestOutcomeTest, ATestWithoutResultHasNoOutcome) {
    Clear("DR", 1);
    EXPECT_FALSE(Search());
}

TEST_F(TestOutcomeTest, ADeflectionThatNoPavementHasEndsAtTheLeastModulus) {
    SetRow(1, {{"D0F", 500.0}});
    const auto outcome = Search();
    EXPECT_FALSE(outcome->converged);
    EXPECT_EQ(outcome->atBound, 5000.0);
}

TEST_F(TestOutcomeTest, ADeflectionSmallerThanTheStiffestPavementsEndsAtTheLargestModulus) {
    SetRow(1, {{"D0F", 0.5}});
    const auto outcome = Search();
    EXPECT_FALSE(outcome->converged);
    EXPECT_EQ(outcome->atBound, 2'000'000.0);
}

TEST_F(TestOutcomeTest, AModulusThatDoesNotGiveTheDeflectionHasNotConverged) {
    Search();
    SetRow(1, {{"NDTEFFEP", 100'000.0}});
    EXPECT_FALSE(Outcome()->converged);
    EXPECT_FALSE(Outcome()->atBound);
}

TEST_F(TestOutcomeTest, WithinATenthOfAPerCentIsAtTheBound) {
    SetRow(1, {{"NDTEFFEP", 5005.0}});
    EXPECT_EQ(Outcome()->atBound, 5000.0);
    SetRow(1, {{"NDTEFFEP", 5006.0}});
    EXPECT_FALSE(Outcome()->atBound);
    SetRow(1, {{"NDTEFFEP", 1'998'000.0}});
    EXPECT_EQ(Outcome()->atBound, 2'000'000.0);
    SetRow(1, {{"NDTEFFEP", 1'997'999.0}});
    EXPECT_FALSE(Outcome()->atBound);
}

TEST_F(TestOutcomeTest, WithoutACorrectionNoModulusConverges) {
    Search();
    Set({{"NDTRMC", 0.0}});
    EXPECT_FALSE(Outcome()->converged);
}

TEST_F(TestOutcomeTest, AnAreaAsOfAnEvenBasinHasNoSolution) {
    EXPECT_FALSE(IsWithoutSolution()) << "there is none";
    SetRow(1, {{"AREA", 35.99}});
    EXPECT_FALSE(IsWithoutSolution());
    SetRow(1, {{"AREA", 36.0}});
    EXPECT_TRUE(IsWithoutSolution());
    SetRow(1, {{"AREA", 0.0}});
    EXPECT_TRUE(IsWithoutSolution());
}

}  // namespace
}  // namespace kelvor::test
