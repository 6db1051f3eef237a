#include "platform/real.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace kelvor::test {
namespace {

constexpr double kLargest = std::numeric_limits<double>::max();
constexpr double kSmallest = std::numeric_limits<double>::denorm_min();

struct Calculation {
    const char* text;
    Real (*compute)();
};

/// What has no finite result.
constexpr Calculation kFaults[] = {
    {"1 / 0", [] { return Real(1.0) / 0.0; }},
    {"-1 / 0", [] { return Real(-1.0) / 0.0; }},
    {"1 / -0", [] { return Real(1.0) / -0.0; }},
    {"0 / 0", [] { return Real(0.0) / 0.0; }},
    {"log 0", [] { return Log(0.0); }},
    {"log -0", [] { return Log(-0.0); }},
    {"log -1", [] { return Log(-1.0); }},
    {"log of the smallest number below zero", [] { return Log(-kSmallest); }},
    {"0 ^ -1", [] { return Pow(0.0, -1.0); }},
    {"0 ^ -0.5", [] { return Pow(0.0, -0.5); }},
    {"-0 ^ -2", [] { return Pow(-0.0, -2.0); }},
    {"(-2) ^ 0.5", [] { return Pow(-2.0, 0.5); }},
    {"(-8) ^ (1/3)", [] { return Pow(-8.0, 1.0 / 3.0); }},
    {"(-2) ^ -0.5", [] { return Pow(-2.0, -0.5); }},
    {"overflow of +", [] { return Real(kLargest) + kLargest; }},
    {"overflow of + below zero", [] { return Real(-kLargest) + -kLargest; }},
    {"overflow of +=", [] { return Real(kLargest) += kLargest; }},
    {"overflow of -", [] { return Real(kLargest) - -kLargest; }},
    {"overflow of *", [] { return Real(kLargest) * 2.0; }},
    {"overflow of * below zero", [] { return Real(1e200) * -1e200; }},
    {"overflow of / by a small number", [] { return Real(kLargest) / 0.5; }},
    {"overflow of / by the smallest number", [] { return Real(1.0) / kSmallest; }},
    // ln(1.7976931348623157e308) = 709.782712893384
    {"e ^ 709.79", [] { return Exp(709.79); }},
    {"10 ^ 309", [] { return Pow(10.0, 309.0); }},
    {"(-10) ^ 309", [] { return Pow(-10.0, 309.0); }},
    {"0.1 ^ -400", [] { return Pow(0.1, -400.0); }},
};

TEST(RealTest, AnOperationWithoutAFiniteResultIsAFault) {
    for (const Calculation& calculation : kFaults) {
        EXPECT_THROW(calculation.compute(), ArithmeticFault) << calculation.text;
    }
}

struct HiddenFault {
    const char* text;
    Real (*compute)();
    /// The same in plain arithmetic, where the fault is lost on the way.
    double (*plain)();
};

constexpr HiddenFault kHiddenFaults[] = {
    {"1 / (1e308 * 10)", [] { return 1.0 / (Real(1e308) * 10.0); }, [] { return 1.0 / (1e308 * 10.0); }},
    {"1 / (1e308 + 1e308)", [] { return 1.0 / (Real(1e308) + 1e308); }, [] { return 1.0 / (1e308 + 1e308); }},
    {"1 / (-1e308 - 1e308)", [] { return 1.0 / (Real(-1e308) - 1e308); },
     [] { return 1.0 / (-1e308 - 1e308); }},
    {"1 / (1e308 / 0.1)", [] { return 1.0 / (Real(1e308) / 0.1); }, [] { return 1.0 / (1e308 / 0.1); }},
    {"e ^ -(1 / 0)", [] { return Exp(-(Real(1.0) / 0.0)); },
     [] { return std::exp(-std::numeric_limits<double>::infinity()); }},
    {"1 / e ^ 1000", [] { return 1.0 / Exp(1000.0); }, [] { return 1.0 / std::exp(1000.0); }},
    {"1 / 10 ^ 400", [] { return 1.0 / Pow(10.0, 400.0); }, [] { return 1.0 / std::pow(10.0, 400.0); }},
    {"e ^ log 0", [] { return Exp(Log(0.0)); }, [] { return std::exp(std::log(0.0)); }},
    {"(log -1) ^ 0", [] { return Pow(Log(-1.0), 0.0); }, [] { return std::pow(std::log(-1.0), 0.0); }},
    {"1 ^ (0 / 0)", [] { return Pow(1.0, Real(0.0) / 0.0); },
     [] { return std::pow(1.0, std::numeric_limits<double>::quiet_NaN()); }},
};

TEST(RealTest, AFaultIsRaisedEvenIfALaterStepWouldHideIt) {
    for (const HiddenFault& calculation : kHiddenFaults) {
        ASSERT_TRUE(std::isfinite(calculation.plain())) << calculation.text << " hides nothing";
        EXPECT_THROW(calculation.compute(), ArithmeticFault) << calculation.text;
    }
}

TEST(RealTest, AFaultLeavesTheVariableAsItWas) {
    Real sum = kLargest;
    EXPECT_THROW(sum += kLargest, ArithmeticFault);
    EXPECT_EQ(sum.value(), kLargest);
}

struct Result {
    const char* text;
    Real (*compute)();
    double expected;
};

constexpr Result kResults[] = {
    {"2 + 3", [] { return Real(2.0) + 3.0; }, 5.0},
    {"2 - 3", [] { return Real(2.0) - 3.0; }, -1.0},
    {"2 * -3", [] { return Real(2.0) * -3.0; }, -6.0},
    {"3 / 2", [] { return Real(3.0) / 2.0; }, 1.5},
    {"0 / 5", [] { return Real(0.0) / 5.0; }, 0.0},
    {"2 += 3",
     [] {
         Real x = 2.0;
         return x += 3.0;
     },
     5.0},
    {"the sum keeps the order of doubles", [] { return Real(0.1) + 0.2; }, 0.1 + 0.2},
    {"log 1", [] { return Log(1.0); }, 0.0},
    {"e ^ 0", [] { return Exp(0.0); }, 1.0},
    {"4 ^ 0.5", [] { return Pow(4.0, 0.5); }, 2.0},
    {"2 ^ -2", [] { return Pow(2.0, -2.0); }, 0.25},
    // Underflow gives 0.
    {"1e-200 * 1e-200", [] { return Real(1e-200) * 1e-200; }, 0.0},
    {"1e-200 / 1e200", [] { return Real(1e-200) / 1e200; }, 0.0},
    {"the smallest number / 2", [] { return Real(kSmallest) / 2.0; }, 0.0},
    {"e ^ -1000", [] { return Exp(-1000.0); }, 0.0},
    {"10 ^ -400", [] { return Pow(10.0, -400.0); }, 0.0},
    {"0.5 ^ 2000", [] { return Pow(0.5, 2000.0); }, 0.0},
    // A negative base with a whole exponent.
    {"(-2) ^ 3", [] { return Pow(-2.0, 3.0); }, -8.0},
    {"(-2) ^ 2", [] { return Pow(-2.0, 2.0); }, 4.0},
    {"(-2) ^ -2", [] { return Pow(-2.0, -2.0); }, 0.25},
    {"(-2) ^ 0", [] { return Pow(-2.0, 0.0); }, 1.0},
    {"0 ^ 0", [] { return Pow(0.0, 0.0); }, 1.0},
    {"0 ^ 3", [] { return Pow(0.0, 3.0); }, 0.0},
    {"0 ^ 0.5", [] { return Pow(0.0, 0.5); }, 0.0},
    // At the end of the range, but within it.
    {"the largest number + 1", [] { return Real(kLargest) + 1.0; }, kLargest},
    {"the largest number - itself", [] { return Real(kLargest) - kLargest; }, 0.0},
    {"the largest number * 1", [] { return Real(kLargest) * 1.0; }, kLargest},
    {"the largest number / itself", [] { return Real(kLargest) / kLargest; }, 1.0},
    {"-the largest number", [] { return -Real(kLargest); }, -kLargest},
    {"2 ^ 1023", [] { return Pow(2.0, 1023.0); }, 0x1p1023},
    {"-0", [] { return -Real(0.0); }, 0.0},
    {"-(-2)", [] { return -Real(-2.0); }, 2.0},
    {"floor 2.9", [] { return Floor(2.9); }, 2.0},
    {"floor -2.1", [] { return Floor(-2.1); }, -3.0},
    {"floor 3", [] { return Floor(3.0); }, 3.0},
    {"abs -2.5", [] { return Abs(-2.5); }, 2.5},
    {"abs 2.5", [] { return Abs(2.5); }, 2.5},
    {"a fresh number", [] { return Real(); }, 0.0},
};

TEST(RealTest, AnythingElseGivesTheResultOfDoubles) {
    for (const Result& result : kResults) {
        EXPECT_NO_THROW(EXPECT_EQ(result.compute().value(), result.expected) << result.text) << result.text;
    }
}

TEST(RealTest, LogarithmAndExponentialReachTheEndsOfTheRange) {
    EXPECT_NEAR(Log(kSmallest).value(), -1074.0 * 0.6931471805599453, 1e-10);  // ln 2^-1074
    EXPECT_NEAR(Log(kLargest).value(), 709.782712893384, 1e-10);
    EXPECT_GT(Exp(709.78).value(), 1.79e308);
}

TEST(RealTest, NumbersCompareAsDoublesDo) {
    const Real one = 1.0;
    EXPECT_TRUE(one == 1.0);
    EXPECT_TRUE(one != 2.0);
    EXPECT_TRUE(one < 2.0);
    EXPECT_TRUE(one <= 1.0);
    EXPECT_TRUE(2.0 > one);
    EXPECT_TRUE(one >= 1.0);
    EXPECT_FALSE(one == 2.0);
    EXPECT_FALSE(one != 1.0);
    EXPECT_FALSE(one < 1.0);
    EXPECT_FALSE(one > 1.0);
    EXPECT_FALSE(one >= 2.0);
    EXPECT_FALSE(one <= 0.0);
    EXPECT_TRUE(Real(0.0) == Real(-0.0));
}

}  // namespace
}  // namespace kelvor::test
