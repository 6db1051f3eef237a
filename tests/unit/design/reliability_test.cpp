#include "design/calc/reliability.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>

#include "support/test_host.h"

namespace kelvor::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const char* const kOverflow = "Math Overflow Error: One or more values out of range.";
const char* const kBounds = "Inputs outside of Equation Bounds!";

struct Row {
    double reliability;
    double zr;
};

// 1993 AASHTO Guide, Part I, Table 4.1.
constexpr std::array kGuideTable = {
    Row{50, -0.000}, Row{60, -0.253}, Row{70, -0.524}, Row{75, -0.674}, Row{80, -0.841},    Row{85, -1.037},
    Row{90, -1.282}, Row{91, -1.340}, Row{92, -1.405}, Row{93, -1.476}, Row{94, -1.555},    Row{95, -1.645},
    Row{96, -1.751}, Row{97, -1.881}, Row{98, -2.054}, Row{99, -2.327}, Row{99.99, -3.750},
};

class ReliabilityTest : public testing::Test {
  protected:
    double ZR(double reliability) {
        Real zr = 1234.0;
        ReliabilityToZR(interval_, host_.dialogs, reliability, zr);
        return zr.value();
    }

    int Reliability(double zr, double& reliability) {
        Real result = reliability;
        const int status = ZRToReliability(host_.dialogs, result, zr);
        reliability = result.value();
        return status;
    }

    double Reliability(double zr) {
        double reliability = -1.0;
        EXPECT_EQ(Reliability(zr, reliability), 0);
        return reliability;
    }

    TestHost host_;
    ReliabilityInterval interval_;
};

TEST_F(ReliabilityTest, EveryRowOfTheTableGivesItsDeviate) {
    for (const Row& row : kGuideTable) EXPECT_DOUBLE_EQ(ZR(row.reliability), row.zr) << row.reliability;
    EXPECT_THAT(host_.record.TakeTexts(), IsEmpty());
}

TEST_F(ReliabilityTest, BetweenTwoRowsTheDeviateLiesOnTheStraightLine) {
    for (std::size_t i = 1; i < kGuideTable.size(); ++i) {
        const Row& low = kGuideTable[i - 1];
        const Row& high = kGuideTable[i];
        const double middle = (low.reliability + high.reliability) / 2.0;
        EXPECT_NEAR(ZR(middle), (low.zr + high.zr) / 2.0, 1e-13) << middle;
    }
}

TEST_F(ReliabilityTest, ABoundBelongsToTheIntervalThatBeginsThere) {
    EXPECT_EQ(ZR(60.0), -0.253);
    EXPECT_EQ(interval_.lowerReliability, 60.0);
    EXPECT_NEAR(ZR(59.999), -0.253 * 0.9999, 1e-15);
    EXPECT_EQ(interval_.upperReliability, 60.0);
}

TEST_F(ReliabilityTest, BelowFiftyTheFirstIntervalIsExtrapolated) {
    EXPECT_DOUBLE_EQ(ZR(40.0), 0.253);
    EXPECT_DOUBLE_EQ(ZR(0.0), 1.265);
}

TEST_F(ReliabilityTest, Above9999TheLastIntervalIsExtrapolated) {
    EXPECT_NEAR(ZR(99.995), -3.75 - 1.423 / 0.99 * 0.005, 1e-12);
}

TEST_F(ReliabilityTest, FromOneHundredOnTheFormerIntervalIsExtrapolated) {
    EXPECT_EQ(ZR(95.0), -1.645);
    EXPECT_DOUBLE_EQ(ZR(100.0), -1.645 - 5.0 * (1.751 - 1.645));
    EXPECT_DOUBLE_EQ(ZR(105.0), -1.645 - 10.0 * (1.751 - 1.645));
    EXPECT_DOUBLE_EQ(interval_.fraction.value(), 10.0);
    EXPECT_THAT(host_.record.TakeTexts(), IsEmpty());
}

TEST_F(ReliabilityTest, OneHundredWithoutAFormerIntervalOverflows) {
    EXPECT_EQ(ZR(100.0), 1234.0) << "the deviate stays as it was";
    EXPECT_THAT(host_.record.TakeTexts(), ElementsAre(kOverflow));
}

TEST_F(ReliabilityTest, EveryDeviateOfTheTableButTheLastGivesItsReliability) {
    for (const Row& row : kGuideTable) {
        // -0.841 falls into the interval 80 to 85, whose lower end it is; -0.674 begins 75 to 80, which no
        // deviate reaches, so it is extrapolated from 80 to 85 as well.
        const double expected =
            row.reliability == 75.0 ? 80.0 - 5.0 * (0.841 - 0.674) / (1.037 - 0.841) : row.reliability;
        if (row.zr > -3.75) {
            EXPECT_NEAR(Reliability(row.zr), expected, 1e-12) << row.zr;
        }
    }
}

TEST_F(ReliabilityTest, BetweenSeventyFiveAndEightyTheNextIntervalIsExtrapolated) {
    EXPECT_NEAR(Reliability(-0.7), 76.403061224489796, 1e-12);
    EXPECT_NEAR(Reliability(-0.8), 80.0 - 5.0 * 0.041 / 0.196, 1e-12);
    // On the other side of -0.674 the interval 70 to 75 holds.
    EXPECT_NEAR(Reliability(-0.6), 70.0 + 5.0 * 0.076 / 0.150, 1e-12);
}

TEST_F(ReliabilityTest, ADeviateOfZeroIsFiftyPerCent) { EXPECT_EQ(Reliability(0.0), 50.0); }

TEST_F(ReliabilityTest, AboveZeroIsOutOfBounds) {
    double reliability = 77.0;
    EXPECT_EQ(Reliability(0.001, reliability), -1);
    EXPECT_EQ(reliability, 77.0);
    EXPECT_THAT(host_.record.TakeTexts(), ElementsAre(kBounds));
}

TEST_F(ReliabilityTest, TheEndOfTheTableOverflows) {
    double reliability = 77.0;
    EXPECT_EQ(Reliability(-3.75, reliability), -1);
    EXPECT_EQ(Reliability(-10.0, reliability), -1);
    EXPECT_EQ(reliability, 77.0);
    EXPECT_THAT(host_.record.TakeTexts(), ElementsAre(kOverflow, kOverflow));
    EXPECT_NEAR(Reliability(-3.7499), 99.99, 1e-4);
}

TEST_F(ReliabilityTest, TheWayBackDoesNotTouchTheInterval) {
    EXPECT_EQ(ZR(95.0), -1.645);
    EXPECT_DOUBLE_EQ(Reliability(-0.253), 60.0);
    EXPECT_EQ(interval_.lowerReliability, 95.0);
}

}  // namespace
}  // namespace kelvor::test
