#include "design/calc/design_equations.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>

#include "reference_equations.h"
#include "support/test_host.h"

namespace kelvor::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const char* const kOverflow = "Math Overflow Error: One or more values out of range.";

constexpr std::array<std::string_view, 8> kFlexible = {"FLEXDEV", "RM", "FLEXPO", "FLEXPT", "", "", "", ""};
constexpr std::array<std::string_view, 8> kRigid = {"RIGDEV", "MR", "EC", "J", "K", "C", "RIGPO", "RIGPT"};

class DesignEquationsTest : public testing::Test {
  protected:
    void SetFlexible(const FlexibleCase& inputs) {
        program_.program.state().reliability.ZR = inputs.zr;
        program_.Set("FLEXDEV", inputs.s0);
        program_.Set("RM", inputs.mr);
        program_.Set("FLEXPO", inputs.p0);
        program_.Set("FLEXPT", inputs.pt);
    }

    void SetRigid(const RigidCase& inputs) {
        program_.program.state().reliability.ZR = inputs.zr;
        program_.Set("RIGDEV", inputs.s0);
        program_.Set("MR", inputs.mr);
        program_.Set("EC", inputs.ec);
        program_.Set("J", inputs.j);
        program_.Set("K", inputs.k);
        program_.Set("C", inputs.cd);
        program_.Set("RIGPO", inputs.p0);
        program_.Set("RIGPT", inputs.pt);
    }

    double Evaluate(std::string_view type, double x, const std::array<std::string_view, 8>& names,
                    double before = -7.0) {
        CalcContext context = program_.program.state().MakeCalcContext();
        Real w18 = before;
        EvaluateE18(context, type, x, w18, names);
        return w18.value();
    }

    std::vector<std::string> Messages() { return program_.host.record.TakeTexts(); }

    TestProgram program_;
};

const FlexibleCase kFlexibleInputs{-1.645, 0.45, 5000.0, 4.2, 2.5};
const RigidCase kRigidInputs{-1.645, 0.35, 650.0, 5e6, 3.2, 72.0, 1.0, 4.2, 2.5};

TEST(Ln10Test, IsTheNaturalLogarithmOfTen) { EXPECT_EQ(Ln10, std::log(10.0)); }

TEST_F(DesignEquationsTest, TheFlexibleFormIsTheGuidesEquation) {
    SetFlexible(kFlexibleInputs);
    for (const double sn : {1.0, 2.5, 4.0, 5.4, 7.0, 12.0, 30.0}) {
        const double traffic = kFlexibleInputs.Traffic(sn);
        EXPECT_NEAR(Evaluate("Flexible", sn, kFlexible), traffic, 51.0 + 1e-12 * traffic) << sn;
    }
    EXPECT_THAT(Messages(), IsEmpty());
}

TEST_F(DesignEquationsTest, TheRigidFormIsTheGuidesEquation) {
    SetRigid(kRigidInputs);
    for (const double depth : {4.0, 6.5, 8.0, 10.0, 12.25, 20.0, 40.0}) {
        const double traffic = kRigidInputs.Traffic(depth);
        EXPECT_NEAR(Evaluate("Rigid", depth, kRigid), traffic, 51.0 + 1e-12 * traffic) << depth;
    }
    EXPECT_THAT(Messages(), IsEmpty());
}

TEST_F(DesignEquationsTest, TrafficOfAtMostOneHundredIsNotRounded) {
    SetFlexible({-1.645, 0.45, 5000.0, 4.2, 2.5});
    const double traffic = kFlexibleInputs.Traffic(0.5);
    ASSERT_LT(traffic, 100.0);
    EXPECT_NEAR(Evaluate("Flexible", 0.5, kFlexible), traffic, 1e-12 * traffic);
}

TEST(RoundTrafficTest, RoundsToHundredsByFortyNine) {
    struct Row {
        double w18, rounded;
    };
    for (const Row& row : {Row{0.5, 0.5}, Row{100.0, 100.0}, Row{100.01, 100.0}, Row{149.0, 100.0},
                           Row{150.0, 100.0}, Row{151.0, 200.0}, Row{200.0, 200.0}, Row{250.0, 200.0},
                           Row{5000051.0, 5000100.0}, Row{5000050.0, 5000000.0}}) {
        EXPECT_EQ(RoundTraffic(row.w18).value(), row.rounded) << row.w18;
    }
}

TEST_F(DesignEquationsTest, ThePavementTypeComparesWithoutRegardToCase) {
    SetFlexible(kFlexibleInputs);
    SetRigid(kRigidInputs);
    const double flexible = Evaluate("Flexible", 5.0, kFlexible);
    EXPECT_EQ(Evaluate("FLEX", 5.0, kFlexible), flexible);
    EXPECT_EQ(Evaluate("fLeXiBlE", 5.0, kFlexible), flexible);
    EXPECT_EQ(Evaluate("rigid", 10.0, kRigid), Evaluate("RIGID", 10.0, kRigid));
}

TEST_F(DesignEquationsTest, AnotherPavementTypeTouchesAndShowsNothing) {
    EXPECT_EQ(Evaluate("Composite", 5.0, kFlexible, 42.0), 42.0);
    EXPECT_EQ(Evaluate("", 5.0, kFlexible, 42.0), 42.0);
    EXPECT_THAT(Messages(), IsEmpty());
}

TEST_F(DesignEquationsTest, AFaultShowsTheMessageAndLeavesTheTraffic) {
    SetFlexible({-1.645, 0.45, 5000.0, 4.2, 4.2});
    EXPECT_EQ(Evaluate("Flexible", 5.0, kFlexible, 42.0), 42.0) << "P0 = Pt";
    EXPECT_THAT(Messages(), ElementsAre(kOverflow));
    SetFlexible({-1.645, 0.45, 0.0, 4.2, 2.5});
    EXPECT_EQ(Evaluate("Flexible", 5.0, kFlexible, 42.0), 42.0) << "no modulus";
    EXPECT_THAT(Messages(), ElementsAre(kOverflow));
    SetRigid({-1.645, 0.35, 650.0, 5e6, 3.2, 72.0, 1.0, 4.2, 4.2});
    EXPECT_EQ(Evaluate("Rigid", 10.0, kRigid, 42.0), 42.0) << "P0 = Pt";
    EXPECT_THAT(Messages(), ElementsAre(kOverflow));
}

TEST_F(DesignEquationsTest, ASlabThatIsTooThinForTheSubgradeIsAFault) {
    SetRigid(kRigidInputs);
    // D^0.75 must exceed 18.42 / (Ec / k)^0.25 = 1.1347 here; 1.18 inches lie between 1.132 and that.
    EXPECT_EQ(Evaluate("Rigid", 1.18, kRigid, 42.0), 42.0);
    EXPECT_THAT(Messages(), ElementsAre(kOverflow));
}

TEST_F(DesignEquationsTest, TrafficBeyondADoubleIsAFault) {
    SetFlexible({0.0, 0.45, 1e150, 4.2, 2.5});
    EXPECT_EQ(Evaluate("Flexible", 5.0, kFlexible, 42.0), 42.0);
    EXPECT_THAT(Messages(), ElementsAre(kOverflow));
}

}  // namespace
}  // namespace kelvor::test
