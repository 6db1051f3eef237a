#include "platform/number_text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <cctype>
#include <clocale>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <locale>
#include <random>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "platform/number_picture.h"

namespace kelvor::test {
namespace {

using namespace std::string_view_literals;

// --- the numeric test -------------------------------------------------------------------------------

constexpr std::string_view kNumeric[] = {
    "0", "5", "42", "007", "123456789", "+5", "-5", "-0", "5.25", "-5.25", "+0.5", ".5", "-.5", "+.5", "5.",
    "-5.", "5.e3", ".5e3",
    // blanks around
    " 5", "5 ", "  5  ", "\t5", "5\t", "\r\n5\r\n", " -1.5e3 ",
    // commas between digits of the integer part
    "1,234", "1,234.5", "-1,234", "1,234,567", "12,34", "1,2,3", "1,234e2", "1,234.",
    // exponents
    "1e3", "1E3", "1d3", "1D3", "1e+3", "1e-3", "1E+3", "1E-3", "1d+3", "1d-3", "1D+3", "1D-3", "1.5e10",
    "-2.5D-4", "1e0", "1e00003", "1e308", "1.7976931348623157e308", "-1e308", "1e-400", "0e999",
    "0e99999999999999999999", "1e-99999999999999999999"};

constexpr std::string_view kNotNumeric[] = {
    "", " ", "\t", "\r\n", ".", "-", "+", "-.", "+.", ". ", ",", "e", "e5", ".e5", "-e5", "d3",
    // more than one sign or point, blanks inside
    "--5", "+-5", "5-", "5+", "- 5", "+ 5", "1 2", "1. 5", "1 e3", "1e 3", "1..2", "1.2.3",
    // commas that are not between digits, or not in the integer part
    ",5", "5,", "1,,2", "1,", ",1,2", "1,.5", "-,5", "1.2,3", "1.,5", "1e1,0", "1,e3",
    // broken exponents
    "1e", "1e+", "1e-", "1d", "1e1.5", "1e5e5", "1ee5", "1e--5", "1ed5", "1f3",
    // what other tests of numbers let pass
    "$5", "5$",
    "\xE2\x82\xAC"
    "5",
    "&H10", "&O7", "0x10", "0x1p3", "0b1", "5%", "%5", "(5)", "5#", "5!", "5@", "5&", "5L", "5f", "1_000",
    "1'000", "inf", "-inf", "infinity", "INF", "nan", "NaN", "nan(1)", "1/2", "1=1", "abc", "12abc", "abc12",
    "True", "Null",
    // digits of other scripts, blanks of other kinds
    "\xD9\xA1", "\xEF\xBC\x91",
    "\xC2\xA0"
    "5",
    "5\xC2\xA0", "\v5", "\f5",
    "\xEF\xBB\xBF"
    "5",
    // bytes that end or break a text
    "1\0"sv, "\0"sv, "\0001"sv, "1\0002"sv, "1\n2", "1\xFF",
    // beyond a double
    "1e309", "-1e309", "1e999", "1.7976931348623159e308", "1e99999999999999999999"};

TEST(NumberTextTest, ANumberIsNumeric) {
    for (const std::string_view text : kNumeric) EXPECT_TRUE(IsNumeric(text)) << '"' << text << '"';
}

TEST(NumberTextTest, AnythingElseIsNotNumeric) {
    for (const std::string_view text : kNotNumeric) EXPECT_FALSE(IsNumeric(text)) << '"' << text << '"';
}

std::string Zeros(std::size_t count) { return std::string(count, '0'); }

struct LongNumber {
    std::string description;
    std::string text;
    bool numeric;
    double value;
};

/// Numbers of many digits, of which the size of the exponent alone tells nothing.
std::vector<LongNumber> LongNumbers() {
    return {
        {"1e308 in digits", "1" + Zeros(308), true, 1e308},
        {"1e309 in digits", "1" + Zeros(309), false, 0.0},
        {"-1e309 in digits", "-1" + Zeros(309), false, 0.0},
        {"400 nines", std::string(400, '9'), false, 0.0},
        {"400 nines and a fraction", std::string(400, '9') + ".5", false, 0.0},
        {"10000 zeros before a 5", Zeros(10000) + "5", true, 5.0},
        {"10000 zeros after 1.5", "1.5" + Zeros(10000), true, 1.5},
        {"10000 zeros", Zeros(10000), true, 0.0},
        {"1e-401 in digits", "0." + Zeros(400) + "1", true, 0.0},
        {"1e-401 without a leading zero", "." + Zeros(400) + "1", true, 0.0},
        {"-1e-401 in digits", "-0." + Zeros(400) + "1", true, 0.0},
        {"1e400 in digits, e-100", "1" + Zeros(400) + "e-100", true, 1e300},
        {"1e400 in digits, e-10: 1e390", "1" + Zeros(400) + "e-10", false, 0.0},
        {"1e400 in digits with a fraction, e-10", "1" + Zeros(400) + ".5e-10", false, 0.0},
        {"1e400 in digits, e-900: 1e-500", "1" + Zeros(400) + "e-900", true, 0.0},
        {"1e-401 in digits, e+400: 1e-1", "0." + Zeros(400) + "1e+400", true, 0.1},
        {"1e-401 in digits, e10: 1e-391", "0." + Zeros(400) + "1e10", true, 0.0},
        {"1e-401 in digits, e+10: 1e-391", "0." + Zeros(400) + "1e+10", true, 0.0},
        {"1e-401 in digits, d+10: 1e-391", "0." + Zeros(400) + "1d+10", true, 0.0},
        {"1e-401 in digits, e900: 1e499", "0." + Zeros(400) + "1e900", false, 0.0},
        {"0 in many digits, e900", "0." + Zeros(400) + "e900", true, 0.0},
        {"an exponent of 10000 digits that is 2", "1e" + Zeros(9999) + "2", true, 100.0},
        {"an exponent of 10000 nines", "1e" + std::string(10000, '9'), false, 0.0},
        {"an exponent of 10000 nines below zero", "1e-" + std::string(10000, '9'), true, 0.0},
    };
}

TEST(NumberTextTest, ALongNumberIsWeighedAsAWhole) {
    for (const LongNumber& number : LongNumbers()) {
        EXPECT_EQ(IsNumeric(number.text), number.numeric) << number.description;
        EXPECT_EQ(ParseNumber(number.text), number.value) << number.description;
        EXPECT_EQ(Val(number.text), number.value) << number.description;
    }
}

// --- from text to number ----------------------------------------------------------------------------

struct TextAndNumber {
    std::string_view text;
    double number;
};

constexpr TextAndNumber kVal[] = {
    {"", 0.0},
    {" ", 0.0},
    {"0", 0.0},
    {"5", 5.0},
    {"-5", -5.0},
    {"+5", 5.0},
    {"007", 7.0},
    {"5.25", 5.25},
    {".5", 0.5},
    {"5.", 5.0},
    {" 5 ", 5.0},
    {"1 2", 12.0},
    {"- 5", -5.0},
    {"12abc", 12.0},
    {"abc", 0.0},
    {"-", 0.0},
    {"+", 0.0},
    {".", 0.0},
    {"-.", 0.0},
    {"--5", 0.0},
    {"1.2.3", 1.2},
    {"1,234.5", 1.0},
    {",5", 0.0},
    {"1e3", 1000.0},
    {"1E3", 1000.0},
    {"1d3", 1000.0},
    {"1D-3", 0.001},
    {"2.5e+2", 250.0},
    {"1e", 1.0},
    {"1e+", 1.0},
    {"1ex", 1.0},
    {"1e2.5", 100.0},
    {"e3", 0.0},
    {"5%", 5.0},
    {"$5", 0.0},
    {"&H10", 0.0},
    {"0x10", 0.0},
    {"(5)", 0.0},
    {"inf", 0.0},
    {"nan", 0.0},
    {"1e-400", 0.0},
    {"-1e-400", 0.0},
    {"1e999", 0.0},
    {"-1e999", 0.0},
    {"1e999abc", 0.0},
    {"5\0006"sv, 5.0},
    {"0.1", 0.1},
    {"123456789.123456789", 123456789.123456789},
    {"1.7976931348623157e308", std::numeric_limits<double>::max()},
    {"4.9406564584124654e-324", std::numeric_limits<double>::denorm_min()},
};

TEST(NumberTextTest, ValReadsTheNumberAtTheHeadOfAText) {
    for (const auto& [text, number] : kVal) EXPECT_EQ(Val(text), number) << '"' << text << '"';
}

constexpr TextAndNumber kParse[] = {
    {"", 0.0},           {"-", 0.0},
    {",", 0.0},          {"1,234.5", 1234.5},
    {"-1,234", -1234.0}, {"1,234,567", 1234567.0},
    {"12,34", 1234.0},   {"5,250", 5250.0},
    {" 1,234 ", 1234.0}, {"1,234abc", 1234.0},
    {"12abc", 12.0},     {"abc", 0.0},
    {"1d3", 1000.0},     {"1,000e2", 100000.0},
    {"1e-400", 0.0},     {"1e999", 0.0},
    {"5.", 5.0},         {".5", 0.5},
    {"+1,000", 1000.0},
};

TEST(NumberTextTest, ParseNumberPassesOverCommas) {
    for (const auto& [text, number] : kParse) EXPECT_EQ(ParseNumber(text), number) << '"' << text << '"';
}

// --- from number to text ----------------------------------------------------------------------------

struct NumberAndText {
    double number;
    std::string_view text;
};

// With a power of ten the exponent has a sign and at least two digits.
constexpr NumberAndText kTexts[] = {
    {0.0, "0"},
    {-0.0, "0"},
    {1.0, "1"},
    {-1.0, "-1"},
    {2.5, "2.5"},
    {-2.5, "-2.5"},
    {0.1 + 0.2, "0.3"},
    {0.1, "0.1"},
    {4.35, "4.35"},
    {1.005, "1.005"},
    {100.0, "100"},
    {1e6, "1000000"},
    {1234567.891, "1234567.891"},
    {1.0 / 3.0, "0.333333333333333"},
    {2.0 / 3.0, "0.666666666666667"},
    {-2.0 / 3.0, "-0.666666666666667"},
    {1e10 / 3.0, "3333333333.33333"},
    {0.001, "0.001"},
    {0.0001, "0.0001"},
    {1e-7, "1e-07"},
    {-1.5e-7, "-1.5e-07"},
    {1e14, "100000000000000"},
    {999999999999999.0, "999999999999999"},
    {123456789012345.0, "123456789012345"},
    {1e15, "1e+15"},
    {9999999999999999.0, "1e+16"},
    {1e22, "1e+22"},
    {1.5e300, "1.5e+300"},
    {123456789012345678.0, "1.23456789012346e+17"},
    {5e-324, "5e-324"},
    {2.2250738585072014e-308, "2.2250738585072e-308"},
    {99.99999999999999, "100"},
    {0.29999999999999999, "0.3"},
    {5250.0, "5250"},
};

TEST(NumberTextTest, ANumberBecomesItsShortestTextOfFifteenDigits) {
    for (const auto& [number, text] : kTexts) EXPECT_EQ(NumberToText(number), text);
}

/// The digits of a text of a number that tell: without sign, point, exponent, outer zeros.
std::string TellingDigits(std::string_view text) {
    std::string digits;
    for (const char c : text.substr(0, text.find('e'))) {
        if (c >= '0' && c <= '9') digits.push_back(c);
    }
    digits.erase(0, std::min(digits.find_first_not_of('0'), digits.size()));
    while (digits.ends_with('0')) digits.pop_back();
    return digits;
}

TEST(NumberTextTest, TheHelperFindsTheTellingDigits) {
    EXPECT_EQ(TellingDigits("-0.0102e-10"), "102");
    EXPECT_EQ(TellingDigits("1200"), "12");
    EXPECT_EQ(TellingDigits("0"), "");
}

TEST(NumberTextTest, TheLargestNumbersKeepFifteenDigitsAndStayNumeric) {
    // At 15 digits the largest double rounds up to a number that no double can hold.
    for (const double number : {std::numeric_limits<double>::max(), std::numeric_limits<double>::lowest()}) {
        const std::string text = NumberToText(number);
        EXPECT_LE(TellingDigits(text).size(), 15U) << text;
        EXPECT_TRUE(IsNumeric(text)) << text;
        EXPECT_NEAR(std::strtod(text.c_str(), nullptr) / number, 1.0, 1e-14) << text;
    }
}

/// Random finite doubles of every size: their bits are random.
class RandomDoubles {
  public:
    double Next() {
        for (;;) {
            const double value = std::bit_cast<double>(random_());
            if (std::isfinite(value)) return value;
        }
    }

  private:
    std::mt19937_64 random_{20240229};
};

std::string Printed(const char* format, int precision, double value) {
    char buffer[64];
    std::snprintf(buffer, sizeof buffer, format, precision, value);
    return buffer;
}

TEST(NumberTextTest, AnExactTextReadsBackAsTheSameDouble) {
    RandomDoubles random;
    for (int i = 0; i < 100000; ++i) {
        const double value = random.Next();
        const std::string text = ExactNumberText(value);
        ASSERT_EQ(std::bit_cast<std::uint64_t>(std::strtod(text.c_str(), nullptr)),
                  std::bit_cast<std::uint64_t>(value))
            << text;
        ASSERT_EQ(Val(text), value) << text;
        ASSERT_TRUE(IsNumeric(text)) << text;
    }
}

TEST(NumberTextTest, AnExactTextOfAMeasuredNumberReadsBackToo) {
    // The numbers of a project: of some size, with a fraction, most of them written in plain digits.
    std::mt19937_64 random(7);
    std::uniform_real_distribution<double> exponent(-7.0, 16.0);
    for (int i = 0; i < 20000; ++i) {
        const double value = std::pow(10.0, exponent(random));
        const std::string text = ExactNumberText(value);
        ASSERT_EQ(std::strtod(text.c_str(), nullptr), value) << text;
        ASSERT_EQ(Val(text), value) << text;
    }
}

TEST(NumberTextTest, AnExactTextIsTheShortest) {
    RandomDoubles random;
    for (int i = 0; i < 10000; ++i) {
        const double value = random.Next();
        int digits = 1;
        while (std::strtod(Printed("%.*e", digits - 1, value).c_str(), nullptr) != value) ++digits;
        const std::size_t shortest = TellingDigits(Printed("%.*e", digits - 1, value)).size();
        ASSERT_EQ(TellingDigits(ExactNumberText(value)).size(), shortest) << ExactNumberText(value);
    }
}

TEST(NumberTextTest, ATextOfFifteenDigitsIsTheNumberRoundedThere) {
    RandomDoubles random;
    for (int i = 0; i < 20000; ++i) {
        const double value = random.Next();
        if (std::fabs(value) < std::numeric_limits<double>::min()) continue;  // has fewer digits than 15
        if (std::fabs(value) > 1.7e308) continue;                             // has a test of its own
        const std::string expected = Printed("%.*e", 14, value);
        const std::string text = NumberToText(value);
        ASSERT_EQ(TellingDigits(text), TellingDigits(expected)) << expected;
        ASSERT_EQ(std::strtod(text.c_str(), nullptr), std::strtod(expected.c_str(), nullptr)) << expected;
    }
}

constexpr NumberAndText kExactTexts[] = {
    {0.0, "0"},
    {-0.0, "0"},
    {0.1 + 0.2, "0.30000000000000004"},
    {0.3, "0.3"},
    {-1234.5, "-1234.5"},
    {1e14, "100000000000000"},
    {1e15, "1e+15"},
    {1e-7, "1e-07"},
    {1.0 / 3.0, "0.3333333333333333"},
    {std::numeric_limits<double>::max(), "1.7976931348623157e+308"},
    {std::numeric_limits<double>::denorm_min(), "5e-324"},
};

TEST(NumberTextTest, AnExactTextHasAsManyDigitsAsItTakes) {
    for (const auto& [number, text] : kExactTexts) EXPECT_EQ(ExactNumberText(number), text);
}

// --- locales ----------------------------------------------------------------------------------------

/// "1234.5" is "1.234,5", as in much of Europe.
class CommaPunctuation : public std::numpunct<char> {
  protected:
    [[nodiscard]] char do_decimal_point() const override { return ','; }
    [[nodiscard]] char do_thousands_sep() const override { return '.'; }
    [[nodiscard]] std::string do_grouping() const override { return "\3"; }
};

/// Puts the locales of C and C++ back at the end of a test.
class LocaleKeeper {
  public:
    LocaleKeeper() = default;
    LocaleKeeper(const LocaleKeeper&) = delete;
    LocaleKeeper& operator=(const LocaleKeeper&) = delete;
    ~LocaleKeeper() {
        std::locale::global(cpp_);
        std::setlocale(LC_ALL, c_.c_str());
    }

  private:
    std::string c_ = std::setlocale(LC_ALL, nullptr);
    std::locale cpp_;
};

void ExpectTheSameInEveryLocale() {
    EXPECT_TRUE(IsNumeric("1,234.5"));
    EXPECT_FALSE(IsNumeric("1.234,5"));
    EXPECT_EQ(ParseNumber("1,234.5"), 1234.5);
    EXPECT_EQ(Val("0.5"), 0.5);
    EXPECT_EQ(Val("0,5"), 0.0);
    EXPECT_EQ(NumberToText(1234.5), "1234.5");
    EXPECT_EQ(NumberToText(1.5e-7), "1.5e-07");
    EXPECT_EQ(ExactNumberText(1234567.25), "1234567.25");
    EXPECT_EQ(FormatNumber(1234567.25, "#,##0.0"), "1,234,567.3");
    EXPECT_EQ(FormatText("1,234.5", "#,##0.00"), "1,234.50");
}

TEST(NumberTextTest, NumbersLookTheSameUnderOtherPunctuation) {
    const LocaleKeeper keeper;
    std::locale::global(std::locale(std::locale::classic(), new CommaPunctuation));
    std::ostringstream stream;
    stream << 1234.5;
    ASSERT_EQ(stream.str(), "1.234,5") << "the locale is not in force";
    ExpectTheSameInEveryLocale();
}

TEST(NumberTextTest, NumbersLookTheSameInEveryLocaleOfTheMachine) {
    const LocaleKeeper keeper;
    // Those that a machine does not have leave the one before in force, and "C" every machine has.
    for (const char* name : {"C", "de_DE.UTF-8", "fr_FR.UTF-8", "de_DE", "hi_IN.UTF-8", "tr_TR.UTF-8", ""}) {
        const char* current = std::setlocale(LC_ALL, name);
        SCOPED_TRACE(current != nullptr ? current : std::setlocale(LC_ALL, nullptr));
        ExpectTheSameInEveryLocale();
    }
}

}  // namespace
}  // namespace kelvor::test
