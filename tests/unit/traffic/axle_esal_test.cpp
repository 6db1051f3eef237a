#include "traffic/calc/axle_esal.h"

#include <cmath>

#include "reference_factors.h"
#include "traffic_fixture.h"

namespace kelvor::test {
namespace {

struct Esals {
    Real rigid;
    Real flexible;
};

class AxleEsalTest : public TrafficTest {
  protected:
    /// The ESALs of axles, starting from outputs that hold something.
    Esals Calc(std::int16_t type, double load, double count = 1.0, std::int16_t period = 3,
               Esals before = {}) {
        AxleEsal(store(), type, load, count, period, before.rigid, before.flexible);
        return before;
    }

    void ExpectStandardAxle(double expected, std::int16_t period = 3) {
        const Esals esals = Calc(1, 18.0, 1.0, period);
        EXPECT_DOUBLE_EQ(esals.rigid.value(), expected);
        EXPECT_DOUBLE_EQ(esals.flexible.value(), expected);
    }
};

TEST_F(AxleEsalTest, AnEighteenKipSingleAxleIsExactlyOne) {
    for (const double pt : {0.5, 1.5, 2.0, 2.5, 3.0, 4.1}) {
        for (int step = 1; step <= 40; ++step) {
            Set("PT", pt);
            Set("TrafficDEPTH", 0.5 * step);
            Set("TrafficSN", 0.25 * step);
            const Esals esals = Calc(1, 18.0);
            EXPECT_EQ(esals.rigid.value(), 1.0) << pt << " " << step;
            EXPECT_EQ(esals.flexible.value(), 1.0) << pt << " " << step;
        }
    }
}

TEST_F(AxleEsalTest, AnyAxleIsWorthWhatTheEquationsSay) {
    for (const int type : {1, 2, 3}) {
        for (const double load : {2.0, 10.0, 18.0, 34.0, 90.0}) {
            for (const double pt : {2.0, 2.5, 3.0}) {
                Set("PT", pt);
                const Esals esals = Calc(static_cast<std::int16_t>(type), load, 250.0);
                const double rigid = 250.0 * ReferenceRigidFactor(type, load, 9.0, pt, 0.333);
                const double flexible = 250.0 * ReferenceFlexibleFactor(type, load, 5.0, pt);
                EXPECT_NEAR(esals.rigid.value(), rigid, 1e-11 * rigid);
                EXPECT_NEAR(esals.flexible.value(), flexible, 1e-11 * flexible);
            }
        }
    }
}

TEST_F(AxleEsalTest, TheRigidLossIsMultipliedByThreeDecimalsAndNotDividedByThree) {
    const double ours = ReferenceRigidFactor(3, 60.0, 9.0, 2.5, 0.333);
    const double divided = ReferenceRigidFactor(3, 60.0, 9.0, 2.5, 1.0 / 3.0);
    ASSERT_GT(std::fabs(ours - divided), 1e-5 * ours) << "the case tells them apart";
    EXPECT_NEAR(Calc(3, 60.0).rigid.value(), ours, 1e-11 * ours);
}

TEST_F(AxleEsalTest, WithoutATypeALoadOrACountBothAreZeroAndNothingElseIsRead) {
    struct Case {
        std::int16_t type;
        double load, count;
    };
    Set("PT", 4.5);  // a fault, if it came so far
    for (const Case& c : {Case{0, 18.0, 1.0}, Case{1, 0.0, 1.0}, Case{1, 18.0, 0.0}}) {
        const auto reads = store().readCount();
        const Esals esals = Calc(c.type, c.load, c.count, 3, {7.0, 8.0});
        EXPECT_EQ(esals.rigid, 0.0);
        EXPECT_EQ(esals.flexible, 0.0);
        EXPECT_EQ(store().readCount(), reads);
    }
}

TEST_F(AxleEsalTest, WithoutGrowthTheLifeItselfIsTheFactor) {
    Set("Life", 20.0);
    ExpectStandardAxle(20.0);
}

TEST_F(AxleEsalTest, GrowthIsCompoundedYearByYear) {
    Set("Life", 20.0);
    Set("GrowthRate", 5.0);
    double sum = 0.0;
    for (int year = 0; year < 20; ++year) sum += std::pow(1.05, year);
    EXPECT_NEAR(sum, 33.07, 0.005);  // 1993 AASHTO Guide, Table D.20
    EXPECT_NEAR(Calc(1, 18.0).rigid.value(), sum, 1e-11);
    EXPECT_NEAR(Calc(1, 18.0).flexible.value(), sum, 1e-11);
}

TEST_F(AxleEsalTest, AShrinkingTrafficIsCompoundedToo) {
    Set("Life", 3.0);
    Set("GrowthRate", -10.0);
    EXPECT_NEAR(Calc(1, 18.0).rigid.value(), 1.0 + 0.9 + 0.81, 1e-12);
}

TEST_F(AxleEsalTest, ADayIsOneOf365AndAQuarterAMonthOneOfTwelve) {
    ExpectStandardAxle(365.25, 1);
    ExpectStandardAxle(12.0, 2);
    ExpectStandardAxle(1.0, 3);
    ExpectStandardAxle(1.0, 0);
    ExpectStandardAxle(1.0, 4);
}

TEST_F(AxleEsalTest, ThePeriodIsTheCallersAndNotTheStores) {
    Set("TrPer", 1.0);
    ExpectStandardAxle(12.0, 2);
}

TEST_F(AxleEsalTest, WithoutASlabThicknessOnlyTheFlexibleOneIsComputed) {
    Set("TrafficDEPTH", 0.0);
    const Esals esals = Calc(1, 18.0);
    EXPECT_EQ(esals.rigid, 0.0);
    EXPECT_EQ(esals.flexible, 1.0);
    EXPECT_EQ(Calc(1, 18.0, 1.0, 3, {7.0, 8.0}).rigid, 7.0);
}

TEST_F(AxleEsalTest, WithoutAStructuralNumberOnlyTheRigidOneIsComputed) {
    Set("TrafficSN", 0.0);
    const Esals esals = Calc(1, 18.0);
    EXPECT_EQ(esals.rigid, 1.0);
    EXPECT_EQ(esals.flexible, 0.0);
    EXPECT_EQ(Calc(1, 18.0, 1.0, 3, {7.0, 8.0}).flexible, 8.0);
}

TEST_F(AxleEsalTest, WithoutATerminalServiceabilityNeitherIsComputed) {
    Set("PT", 0.0);
    const Esals esals = Calc(1, 18.0, 1.0, 3);
    EXPECT_EQ(esals.rigid, 0.0);
    EXPECT_EQ(esals.flexible, 0.0);
}

TEST_F(AxleEsalTest, OnlyTotalTrafficIsDistributed) {
    struct Case {
        double counted, way, direction, lane, part;
    };
    // In the design lane; both ways; one way, without regard to the direction; lane of 0.
    for (const Case& c :
         {Case{1, 2, 50, 80, 1.0}, Case{2, 2, 50, 80, 0.4}, Case{2, 1, 50, 80, 0.8}, Case{2, 0, 50, 80, 0.8},
          Case{2, 2, 60, 0, 0.0}, Case{2, 2, 0, 80, 0.0}, Case{0, 2, 50, 80, 1.0}, Case{3, 2, 50, 80, 1.0}}) {
        Set("TRFACTYPE", c.counted);
        Set("TRWAY", c.way);
        Set("TRDIRDIS", c.direction);
        Set("TRLANDIS", c.lane);
        ExpectStandardAxle(c.part);
    }
}

TEST_F(AxleEsalTest, ATerminalServiceabilityThatLeavesNoLossIsAFault) {
    Set("PT", 4.1999);
    EXPECT_NO_THROW(Calc(1, 20.0));
    for (const double pt : {4.2, 4.3, 4.5, 5.0}) {
        Set("PT", pt);
        EXPECT_THROW(Calc(1, 20.0), ArithmeticFault) << pt;
    }
    Set("TrafficSN", 0.0);
    Set("PT", 4.4999);
    EXPECT_NO_THROW(Calc(1, 20.0)) << "rigid slabs begin at 4.5";
    Set("PT", 4.5);
    EXPECT_THROW(Calc(1, 20.0), ArithmeticFault);
    Set("TrafficDEPTH", 0.0);
    EXPECT_NO_THROW(Calc(1, 20.0)) << "neither is computed";
}

TEST_F(AxleEsalTest, NumbersWithoutAFiniteResultAreFaults) {
    EXPECT_THROW(Calc(1, -1.0), ArithmeticFault) << "logarithm of 0";
    EXPECT_THROW(Calc(1, -5.0), ArithmeticFault);
    EXPECT_THROW(Calc(1, 1e300), ArithmeticFault);
    EXPECT_THROW(Calc(1, 18.0, 1.7e308, 2), ArithmeticFault);
    Set("TrafficDEPTH", -1.0);
    EXPECT_THROW(Calc(1, 20.0), ArithmeticFault);
    Set("TrafficDEPTH", 0.0);
    Set("TrafficSN", 0.0);
    Set("GrowthRate", 100.0);
    Set("Life", 2000.0);
    EXPECT_THROW(Calc(1, 20.0), ArithmeticFault) << "the growth comes before the rest";
}

TEST_F(AxleEsalTest, TheStoresEnglishNumbersCountInMetricModeToo) {
    program_.units().SetMetric(true);
    ExpectStandardAxle(1.0);
    program_.units().SetDisplayValue("TrafficDEPTH", 1, 1, "228.6");
    EXPECT_NEAR(Calc(2, 30.0).rigid.value(), ReferenceRigidFactor(2, 30.0, 9.0, 2.5, 0.333), 1e-9);
}

TEST_F(AxleEsalTest, TheTypeIsReadFromTheExactWord) {
    const auto codeOf = [this](const std::string& word) {
        store().SetCell("AxleType", 7, 1, {std::nullopt, word});
        return AxleTypeCode(store(), 7);
    };
    EXPECT_EQ(codeOf("Single"), 1);
    EXPECT_EQ(codeOf("Tandem"), 2);
    EXPECT_EQ(codeOf("Tridem"), 3);
    for (const char* word : {"single", "SINGLE", " Single", "Tandem ", "1", "Quad", ""}) {
        EXPECT_EQ(codeOf(word), 0) << word;
    }
    EXPECT_EQ(AxleTypeCode(store(), 8), 0) << "an empty row";
}

TEST_F(AxleEsalTest, TheListOffersTheWordsInTheOrderOfTheirCodes) {
    std::int16_t code = 0;
    for (const std::string& word : program_.program.state().dbCustom->Values("AxleType", false)) {
        store().SetCell("AxleType", 1, 1, {std::nullopt, word});
        EXPECT_EQ(AxleTypeCode(store(), 1), ++code) << word;
    }
    EXPECT_EQ(code, 3);
}

TEST_F(AxleEsalTest, ARowBeyondTheLastStopsTheProgram) {
    EXPECT_EQ(AxleTypeCode(store(), 50), 0);
    EXPECT_THROW(AxleTypeCode(store(), 51), ProgramStop);
    EXPECT_THROW(AxleTypeCode(store(), 0), ProgramStop);
}

TEST(WholeCodeTest, GoesToTheNearestWholeNumberOfSixteenBits) {
    EXPECT_EQ(WholeCode(2.0), 2);
    EXPECT_EQ(WholeCode(1.4), 1);
    EXPECT_EQ(WholeCode(1.6), 2);
    EXPECT_EQ(WholeCode(0.5), 0);
    EXPECT_EQ(WholeCode(1.5), 2);
    EXPECT_EQ(WholeCode(2.5), 2);
    EXPECT_EQ(WholeCode(-1.0), -1);
    EXPECT_EQ(WholeCode(32767.0), 32767);
    EXPECT_THROW(WholeCode(32768.0), ArithmeticFault);
    EXPECT_THROW(WholeCode(-32769.0), ArithmeticFault);
}

}  // namespace
}  // namespace kelvor::test
