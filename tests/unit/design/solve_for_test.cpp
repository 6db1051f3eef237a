#include "design/calc/solve_for.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <string>
#include <vector>

#include "reference_equations.h"
#include "shell/calculations.h"
#include "support/test_host.h"

namespace kelvor::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const char* const kOverflow = "Math Overflow Error: One or more values out of range.";
const char* const kBounds = "Inputs outside of Equation Bounds!";
const char* const kMissing = "ALL Other Variables Must Be Entered!";

/// The values of an equation's terms, by term number from 1.
using FlexibleValues = std::array<double, 7>;
using RigidValues = std::array<double, 11>;

// Structural number, W18, reliability, S0, MR, P0, Pt.
constexpr FlexibleValues kFlexible = {0, 5e6, 95, 0.45, 5000, 4.2, 2.5};
// Thickness, W18, reliability, S0, MR, Ec, J, k, Cd, P0, Pt.
constexpr RigidValues kRigid = {0, 5e6, 95, 0.35, 650, 5e6, 3.2, 72, 1, 4.2, 2.5};

bool IsFlexible(const SolveKey& equation) { return equation.terms.size() == kFlexibleTerms; }

class SolveForTest : public testing::Test {
  protected:
    template <typename Values>
    void Enter(const SolveKey& equation, const Values& values) {
        const auto terms = equation.terms;
        for (std::size_t i = 0; i < values.size(); ++i) program_.Set(std::string(terms[i]), values[i]);
    }

    void EnterFlexible(const FlexibleValues& values) { Enter(Equation("DeF"), values); }
    void EnterRigid(const RigidValues& values) { Enter(Equation("DeR"), values); }

    const SolveKey& Equation(std::string_view screen) {
        return *program_.program.state().calculations.FindEquation(screen, 1);
    }
    int Solve(std::string_view screen, int term) { return program_.program.Solve(screen, term); }
    double Get(const std::string& name) { return program_.Get(name); }
    std::vector<std::string> Messages() { return program_.host.record.TakeTexts(); }
    [[nodiscard]] double ZR() { return program_.program.state().reliability.ZR.value(); }

    TestProgram program_;
};

// --- The answer of the search --------------------------------------------------------------------

TEST_F(SolveForTest, TheStructuralNumberIsFoundAfterElevenPasses) {
    EnterFlexible(kFlexible);
    EXPECT_EQ(Solve("DeF", 1), 0);
    // The eleventh halving of 0.01 to 30 that meets the tolerance; an exact sum of powers of two.
    EXPECT_EQ(Get("SN"), 5.4134716796874995);
    // The clock is read once before the first pass and once after each pass that did not finish.
    EXPECT_EQ(program_.host.clock.readings, 1 + 10);
    const double traffic = FlexibleCase{-1.645, 0.45, 5000, 4.2, 2.5}.Traffic(Get("SN"));
    EXPECT_LT(std::fabs(traffic - 5e6), 5e6 / 1000.0 + 50.0);
    EXPECT_THAT(Messages(), IsEmpty());
}

TEST_F(SolveForTest, TheThicknessIsFound) {
    EnterRigid(kRigid);
    EXPECT_EQ(Solve("DeR", 1), 0);
    EXPECT_NEAR(Get("DEPTH"), 10.031621160385551, 1e-12 * 10.0);
    EXPECT_THAT(Messages(), IsEmpty());
}

struct PublishedStructuralNumber {
    const char* source;
    FlexibleValues values;
    double structuralNumber, tolerance;
};

TEST_F(SolveForTest, PublishedStructuralNumbersHold) {
    for (const PublishedStructuralNumber& row :
         {PublishedStructuralNumber{"1993 AASHTO Guide, Part II, Figure 3.1, example",
                                    {0, 5e6, 95, 0.35, 5000, 4.2, 2.3},
                                    5.0,
                                    0.05},
          PublishedStructuralNumber{
              "notebook of worked designs", {0, 5e6, 95, 0.45, 12000, 4.2, 2.5}, 4.0125, 0.004}}) {
        EnterFlexible(row.values);
        EXPECT_EQ(Solve("DeF", 1), 0) << row.source;
        EXPECT_NEAR(Get("SN"), row.structuralNumber, row.tolerance) << row.source;
    }
}

TEST_F(SolveForTest, ThePublishedThicknessHolds) {
    // 1993 AASHTO Guide, Part II, Figure 3.7, example: a nomograph, read to the nearest half inch.
    EnterRigid({0, 5.1e6, 95, 0.29, 650, 5e6, 3.2, 72, 1, 4.2, 2.5});
    EXPECT_EQ(Solve("DeR", 1), 0);
    EXPECT_NEAR(Get("DEPTH"), 10.0, 0.5);
}

TEST_F(SolveForTest, ThePublishedSubgradeModulusHolds) {
    // Course notes on the flexible design for a given structural number.
    EnterFlexible({4.24, 4124067.84, 70, 0.5, 1000, 4.5, 2.5});
    EXPECT_EQ(Solve("DeF", 5), 0);
    EXPECT_NEAR(Get("RM"), 5250.31, 0.2);
}

// --- Every term of every screen comes back -----------------------------------------------------------

class EveryEquation : public SolveForTest, public testing::WithParamInterface<SolveKey> {
  protected:
    void EnterBalanced() {
        const SolveKey& equation = GetParam();
        if (IsFlexible(equation)) {
            Enter(equation, kFlexible);
        } else {
            Enter(equation, kRigid);
        }
        ASSERT_EQ(SolveTerm(1), 0);
        ASSERT_EQ(SolveTerm(2), 0);  // the traffic that the equation gives at the solved thickness
    }

    int SolveTerm(int term) { return Solve(GetParam().screen, GetParam().firstTerm + term - 1); }
    std::string Name(int term) { return std::string(GetParam().terms[static_cast<std::size_t>(term - 1)]); }
};

TEST_P(EveryEquation, EachTermSolvedFromAnotherStartComesBack) {
    EnterBalanced();
    const int terms = static_cast<int>(GetParam().terms.size());
    for (int term = 1; term <= terms; ++term) {
        if (!IsFlexible(GetParam()) && term == 11) continue;
        const double balanced = Get(Name(term));
        // Another start at which the equation still holds: a larger Po, a smaller of all others.
        const bool isInitialServiceability = term == (!IsFlexible(GetParam()) ? 10 : 6);
        program_.Set(Name(term), balanced * (isInitialServiceability ? 1.1 : 0.8));
        EXPECT_EQ(SolveTerm(term), 0) << Name(term);
        const double tolerance =
            term == 1 ? 1e-3 : 1e-4;  // the search itself stops at a thousandth of the traffic
        EXPECT_NEAR(Get(Name(term)), balanced, tolerance * balanced) << Name(term);
        program_.Set(Name(term), balanced);
    }
    EXPECT_THAT(Messages(), IsEmpty());
}

TEST_P(EveryEquation, TheTrafficIsWhatTheGuidesEquationGives) {
    EnterBalanced();
    const double x = Get(Name(1));
    const double expected = IsFlexible(GetParam())
                                ? FlexibleCase{-1.645, 0.45, 5000, 4.2, 2.5}.Traffic(x)
                                : RigidCase{-1.645, 0.35, 650, 5e6, 3.2, 72, 1, 4.2, 2.5}.Traffic(x);
    EXPECT_NEAR(Get(Name(2)), expected, 51.0);
    EXPECT_EQ(std::fmod(Get(Name(2)), 100.0), 0.0);
}

TEST_P(EveryEquation, OneMissingTermIsRefusedWithOneMessage) {
    EnterBalanced();
    const int terms = static_cast<int>(GetParam().terms.size());
    for (int missing = 2; missing <= terms; ++missing) {
        const double value = Get(Name(missing));
        program_.Set(Name(missing), 0.0);
        const double x = Get(Name(1));
        EXPECT_EQ(SolveTerm(1), -1) << Name(missing);
        EXPECT_THAT(Messages(), ElementsAre(kMissing)) << Name(missing);
        EXPECT_EQ(Get(Name(1)), x);
        program_.Set(Name(missing), value);
    }
}

TEST_P(EveryEquation, WithNothingEnteredEveryTermIsRefusedWithOneMessage) {
    const int terms = static_cast<int>(GetParam().terms.size());
    for (int term = 1; term <= terms; ++term) {
        EXPECT_EQ(SolveTerm(term), -1);
        EXPECT_THAT(Messages(), ElementsAre(kMissing)) << Name(term);
        EXPECT_EQ(Get(Name(term)), 0.0);
    }
}

TEST_P(EveryEquation, TheRigidTerminalServiceabilityIsLeftAlone) {
    if (IsFlexible(GetParam())) return;
    EnterBalanced();
    program_.Set(Name(11), 1.7);
    EXPECT_EQ(SolveTerm(11), 0);
    EXPECT_EQ(Get(Name(11)), 1.7);
    EXPECT_THAT(Messages(), IsEmpty());
}

TEST_P(EveryEquation, AReliabilityBetweenSeventyFiveAndEightyComesBackFromTheNextInterval) {
    EnterBalanced();
    // At 78 the deviate is -0.674 - 0.6 x 0.167; the way back extrapolates from the interval 80 to 85.
    program_.Set(Name(3), 78.0);
    ASSERT_EQ(SolveTerm(2), 0);
    ASSERT_EQ(SolveTerm(3), 0);
    const double zr = -0.674 - 0.6 * 0.167;
    EXPECT_NEAR(Get(Name(3)), 80.0 + 5.0 * (zr + 0.841) / (0.841 - 1.037), 78.0 * 1e-4);
}

std::string EquationName(const testing::TestParamInfo<SolveKey>& info) {
    return std::string(info.param.screen) + (IsFlexible(info.param) ? "Flexible" : "Rigid");
}

INSTANTIATE_TEST_SUITE_P(AllScreens, EveryEquation, testing::ValuesIn(JoinCalculations().SolveKeys()),
                         EquationName);

// --- The reliability ---------------------------------------------------------------------------------

TEST_F(SolveForTest, ARefusedSolveHasLookedUpTheReliability) {
    program_.Set("FLEXREL", 90.0);
    EXPECT_EQ(Solve("DeF", 1), -1);
    EXPECT_THAT(Messages(), ElementsAre(kMissing));
    EXPECT_EQ(ZR(), -1.282);
}

TEST_F(SolveForTest, ReliabilityIsComputedFromAnEmptyField) {
    EnterFlexible({5.0, 5e6, 0, 0.35, 5000, 4.2, 2.3});
    program_.program.state().reliability.ZR = -9.0;
    EXPECT_EQ(Solve("DeF", 3), 0);
    const double perDeviation = FlexibleCase{-1.0, 0.35, 5000, 4.2, 2.3}.Traffic(5.0);
    const double zr = -1.0 + std::log10(5e6 / perDeviation) / 0.35;
    EXPECT_NEAR(ZR(), zr, 1e-12);
    // This deviate lies between those of 94 and 96 per cent, by the Guide's table.
    EXPECT_GT(Get("FLEXREL"), 94.0);
    EXPECT_LT(Get("FLEXREL"), 96.0);
}

TEST_F(SolveForTest, AReliabilityOfOneHundredInAFreshProcessOverflowsAndGoesOn) {
    FlexibleValues values = kFlexible;
    values[2] = 100.0;
    EnterFlexible(values);
    EXPECT_EQ(Solve("DeF", 1), 0);
    EXPECT_THAT(Messages(), ElementsAre(kOverflow));
    const double traffic = FlexibleCase{0.0, 0.45, 5000, 4.2, 2.5}.Traffic(Get("SN"));
    EXPECT_LT(std::fabs(traffic - 5e6), 5050.0) << "solved with a deviate of 0";
}

TEST_F(SolveForTest, AReliabilityBelowFiftyCannotBeSolvedFor) {
    EnterFlexible({3.0, 5e6, 95, 0.45, 5000, 4.2, 2.5});
    EXPECT_EQ(Solve("DeF", 3), -1);
    EXPECT_THAT(Messages(), ElementsAre(kBounds));
    EXPECT_EQ(Get("FLEXREL"), 95.0);
    EXPECT_GT(ZR(), 0.0) << "the deviate was stored before it was tested";
}

TEST_F(SolveForTest, AReliabilityBeyondTheTableOverflows) {
    EnterRigid({20.0, 1000, 95, 0.35, 650, 5e6, 3.2, 72, 1, 4.2, 2.5});
    EXPECT_EQ(Solve("DeR", 3), -1);
    EXPECT_THAT(Messages(), ElementsAre(kOverflow));
    EXPECT_EQ(Get("RIGREL"), 95.0);
}

// --- The ends of the search --------------------------------------------------------------------------

TEST_F(SolveForTest, AVerySmallTrafficLowersTheBracketByHalves) {
    EnterFlexible({0, 25, 95, 0.45, 30000, 4.2, 2.5});
    EXPECT_EQ(Solve("DeF", 1), 0);
    EXPECT_GT(Get("SN"), 0.0);
    EXPECT_LT(Get("SN"), 0.01);
    const double traffic = FlexibleCase{-1.645, 0.45, 30000, 4.2, 2.5}.Traffic(Get("SN"));
    EXPECT_NEAR(traffic, 25.0, 0.025);
}

TEST_F(SolveForTest, ATrafficThatNoStructuralNumberIsSmallEnoughForLeavesIt) {
    EnterFlexible({3.0, 1e-6, 95, 0.45, 30000, 4.2, 2.5});
    EXPECT_EQ(Solve("DeF", 1), 0);
    EXPECT_EQ(Get("SN"), 3.0);
    EXPECT_THAT(Messages(), IsEmpty());
}

TEST_F(SolveForTest, AVeryLargeTrafficRaisesTheBracketByOnes) {
    const double traffic =
        std::round(FlexibleCase{-1.645, 0.45, 5000, 4.2, 2.5}.Traffic(35.0) / 100.0) * 100.0;
    EnterFlexible({0, traffic, 95, 0.45, 5000, 4.2, 2.5});
    EXPECT_EQ(Solve("DeF", 1), 0);
    EXPECT_NEAR(Get("SN"), 35.0, 0.01);
}

TEST_F(SolveForTest, ATrafficBelowTheThinnestSlabIsOutOfBounds) {
    EnterRigid({9.0, 0.001, 95, 0.35, 650, 5e6, 3.2, 100, 1, 4.2, 2.5});
    const double before = Get("DEPTH");
    EXPECT_EQ(Solve("DeR", 1), -1);
    EXPECT_THAT(Messages(), ElementsAre(kBounds));
    EXPECT_EQ(Get("DEPTH"), before);
}

TEST_F(SolveForTest, ASlabThinnerThanFourInchesBecomesFour) {
    const double traffic =
        std::round(RigidCase{-1.645, 0.35, 650, 5e6, 3.2, 72, 1, 4.2, 2.5}.Traffic(3.5) / 100.0) * 100.0;
    EnterRigid({0, traffic, 95, 0.35, 650, 5e6, 3.2, 72, 1, 4.2, 2.5});
    EXPECT_EQ(Solve("DeR", 1), 0);
    EXPECT_EQ(Get("DEPTH"), 4.0);
}

TEST_F(SolveForTest, ASlabThickerThanTwentyInchesBecomesTwenty) {
    const double traffic =
        std::round(RigidCase{-1.645, 0.35, 650, 5e6, 3.2, 72, 1, 4.2, 2.5}.Traffic(24.0) / 100.0) * 100.0;
    EnterRigid({0, traffic, 95, 0.35, 650, 5e6, 3.2, 72, 1, 4.2, 2.5});
    EXPECT_EQ(Solve("DeR", 1), 0);
    EXPECT_EQ(Get("DEPTH"), 20.0);
}

TEST_F(SolveForTest, AFlexibleSearchEndsAfterTwelveSeconds) {
    EnterFlexible({3.0, 1e300, 95, 0.45, 5000, 4.2, 2.5});
    program_.host.clock.gain = 1.0;
    EXPECT_EQ(Solve("DeF", 1), 0);
    EXPECT_EQ(Get("SN"), 3.0);
    // The start, then one reading a pass: the thirteenth is the first that is more than 12 seconds late.
    EXPECT_EQ(program_.host.clock.readings, 14);
    EXPECT_THAT(Messages(), IsEmpty());
}

TEST_F(SolveForTest, ARigidSearchOutOfTimeRewritesTheThicknessWithinItsBounds) {
    RigidValues values = kRigid;
    values[0] = 3.0;
    values[1] = 1e300;
    EnterRigid(values);
    program_.host.clock.gain = 1.0;
    EXPECT_EQ(Solve("DeR", 1), 0);
    EXPECT_EQ(program_.host.clock.readings, 14);
    EXPECT_EQ(Get("DEPTH"), 4.0);
    program_.Set("DEPTH", 0.0);
    EXPECT_EQ(Solve("DeR", 1), 0);
    EXPECT_EQ(Get("DEPTH"), 0.0) << "a thickness that was not entered stays so";
}

TEST_F(SolveForTest, ATrafficThatTheRoundingSkipsEndsAtOnceLikeATimeOut) {
    // A thousandth of 12,345 is 12, and the equation gives hundreds only. The clock stands still, so
    // only the bracket that no longer moves can end this.
    EnterFlexible({3.0, 12345, 95, 0.45, 5000, 4.2, 2.5});
    EXPECT_EQ(Solve("DeF", 1), 0);
    EXPECT_EQ(Get("SN"), 3.0);
    EnterRigid({5.0, 12345, 95, 0.35, 650, 5e6, 3.2, 72, 1, 4.2, 2.5});
    EXPECT_EQ(Solve("DeR", 1), 0);
    EXPECT_EQ(Get("DEPTH"), 5.0);
    EXPECT_THAT(Messages(), IsEmpty());
}

TEST_F(SolveForTest, ATargetThatIsTheTrafficOfTheLowEndEndsLikeATimeOut) {
    EnterFlexible({0.01, 1, 95, 0.45, 30000, 4.2, 2.5});
    ASSERT_EQ(Solve("DeF", 2), 0);  // the traffic at 0.01, where the bracket begins
    program_.Set("SN", 3.0);
    EXPECT_EQ(Solve("DeF", 1), 0);
    EXPECT_EQ(Get("SN"), 3.0);
    EXPECT_EQ(program_.host.clock.readings, 2);
}

// --- Faults and refusals -------------------------------------------------------------------------------

TEST_F(SolveForTest, EqualServiceabilitiesOverflow) {
    EnterFlexible({3.0, 5e6, 95, 0.45, 5000, 2.5, 2.5});
    EXPECT_EQ(Solve("DeF", 1), -1);
    EXPECT_THAT(Messages(), ElementsAre(kOverflow));
    EXPECT_EQ(Get("SN"), 3.0);
}

TEST_F(SolveForTest, TermsWithALogarithmNeedAStart) {
    EnterFlexible({5.0, 5e6, 95, 0.45, 0, 4.2, 2.5});
    EXPECT_EQ(Solve("DeF", 5), -1);
    EXPECT_THAT(Messages(), ElementsAre(kOverflow));
    for (const int term : {5, 6, 7, 8, 9}) {
        RigidValues values = kRigid;
        values[0] = 10.0;
        values[static_cast<std::size_t>(term - 1)] = 0.0;
        EnterRigid(values);
        EXPECT_EQ(Solve("DeR", term), -1) << term;
        EXPECT_THAT(Messages(), ElementsAre(kOverflow)) << term;
        EXPECT_EQ(Get(std::string(Equation("DeR").terms[static_cast<std::size_t>(term - 1)])), 0.0);
    }
}

TEST_F(SolveForTest, TrafficOnASlabThatIsTooThinIsOutOfBounds) {
    RigidValues values = kRigid;
    values[0] = 1.0;  // below both 1.132 and the stiffness bound, so that the ratio itself is positive
    EnterRigid(values);
    EXPECT_EQ(Solve("DeR", 2), -1);
    EXPECT_THAT(Messages(), ElementsAre(kBounds));
    EXPECT_EQ(Get("RIGE18"), 5e6);
}

TEST_F(SolveForTest, AScreenWithoutAnEquationTouchesNothing) {
    EnterFlexible(kFlexible);
    EXPECT_EQ(Solve("TrVe", 1), 0);
    EXPECT_EQ(Solve("", 1), 0);
    EXPECT_EQ(Get("SN"), 0.0);
    EXPECT_THAT(Messages(), IsEmpty());
}

TEST_F(SolveForTest, ScreenNamesCompareWithoutRegardToCase) {
    EnterFlexible(kFlexible);
    EXPECT_EQ(Solve("def", 1), 0);
    EXPECT_GT(Get("SN"), 5.0);
}

TEST_F(SolveForTest, TermTwelveOfBothDesignsIsTheStructuralNumber) {
    EnterFlexible(kFlexible);
    EXPECT_EQ(Solve("DeS", 12), 0);
    EXPECT_EQ(Get("SN"), 5.4134716796874995);
    EXPECT_EQ(Get("DEPTH"), 0.0);
}

TEST_F(SolveForTest, ASolveLeavesTheTextThatWasTyped) {
    program_.store().SetCell("SN", 1, 1, {4.0, "4.0"});
    FlexibleValues values = kFlexible;
    values[0] = 4.0;
    EnterFlexible(values);
    EXPECT_EQ(Solve("DeF", 1), 0);
    EXPECT_EQ(program_.store().FindCell("SN", 1, 1)->text, "4.0");
}

TEST(EquationScreensTest, TermsAreFoundByTheirVariable) {
    const Dispatch calculations = JoinCalculations();
    EXPECT_EQ(calculations.TermNumber("DeF", "SN"), 1);
    EXPECT_EQ(calculations.TermNumber("DeS", "sn"), 12);
    EXPECT_EQ(calculations.TermNumber("DeS", "RIGPT"), 11);
    EXPECT_EQ(calculations.TermNumber("DeF", "RIGPT"), std::nullopt);
    EXPECT_EQ(calculations.LastTerm("DeF"), 7);
    EXPECT_EQ(calculations.LastTerm("OvWT"), 11);
    EXPECT_EQ(calculations.LastTerm("DeS"), 18);
    EXPECT_EQ(calculations.LastTerm("TabForm"), 0);
}

}  // namespace
}  // namespace kelvor::test
