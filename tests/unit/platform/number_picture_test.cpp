#include "platform/number_picture.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <limits>
#include <random>
#include <string>
#include <string_view>

namespace kelvor::test {
namespace {

struct Row {
    double number;
    std::string_view picture;
    std::string_view text;
};

constexpr Row kRows[] = {
    // half away from zero
    {2.5, "#,##0", "3"},
    {-2.5, "#,##0", "-3"},
    {3.5, "#,##0", "4"},
    {0.5, "#,##0", "1"},
    {-0.5, "#,##0", "-1"},
    {1.5, "0", "2"},
    {0.49, "0", "0"},
    {2.4999, "#,##0", "2"},
    {0.25, "#,##0.0", "0.3"},
    {0.35, "#,##0.0", "0.4"},
    {-0.25, "#,##0.0", "-0.3"},
    {0.125, "0.00", "0.13"},
    {0.0005, "0.000", "0.001"},
    {0.0625, "0.000", "0.063"},
    // on the decimal value: none of these doubles is quite the number that it is written as
    {1.005, "0.00", "1.01"},
    {-1.005, "0.00", "-1.01"},
    {1.115, "0.00", "1.12"},
    {2.675, "0.00", "2.68"},
    {1.45, "0.0", "1.5"},
    {8.345, "#,##0.00", "8.35"},
    {1.0005, "0.000", "1.001"},
    {0.285, "##0.00", "0.29"},
    {1234.565, "#,##0.00", "1,234.57"},
    // at 15 significant digits: the 16th can lift a number to the half
    {0.1 + 0.2, "0.00", "0.30"},
    {2.4999999999999996, "#,##0", "3"},
    {2.49999999999999, "#,##0", "2"},
    {4.3499999999999996, "0.0", "4.4"},
    // carries
    {999.95, "#,##0.0", "1,000.0"},
    {999.949, "#,##0.0", "999.9"},
    {9.995, "0.00", "10.00"},
    {99.5, "0", "100"},
    {0.999, "0.00", "1.00"},
    {0.0996, "0.00", "0.10"},
    {999999.5, "#,##0", "1,000,000"},
    {-999.95, "#,##0.0", "-1,000.0"},
    {19.96, "##0.0", "20.0"},
    // small numbers, never "-0"
    {0.05, "#,##0.0", "0.1"},
    {0.04999, "#,##0.0", "0.0"},
    {-0.05, "#,##0.0", "-0.1"},
    {-0.04999, "#,##0.0", "0.0"},
    {-0.4, "#,##0", "0"},
    {-0.0049, "0.00", "0.00"},
    {-0.0, "#,##0", "0"},
    {-0.0, "0.00", "0.00"},
    {0.005, "0.00", "0.01"},
    {1e-10, "0.000", "0.000"},
    {-1e-10, "0.000", "0.000"},
    {1e-300, "#,##0", "0"},
    {-5e-324, "0.00", "0.00"},
    // nothing shows of a zero that has no place of its own
    {0.0, "###,###,###", ""},
    {-0.0, "###,###,###", ""},
    {0.4, "###,###,###", ""},
    {-0.4, "###,###,###", ""},
    {0.5, "###,###,###", "1"},
    {-0.5, "###,###,###", "-1"},
    {12.0, "###,###,###", "12"},
    {1234.0, "###,###,###", "1,234"},
    {1234567890.0, "###,###,###", "1,234,567,890"},
    {0.0, "#", ""},
    {0.0, "#.00", ".00"},
    {0.25, "#.00", ".25"},
    {-0.25, "#.00", "-.25"},
    {1.25, "#.00", "1.25"},
    // groups at each length
    {1.0, "#,##0", "1"},
    {12.0, "#,##0", "12"},
    {123.0, "#,##0", "123"},
    {1234.0, "#,##0", "1,234"},
    {12345.0, "#,##0", "12,345"},
    {123456.0, "#,##0", "123,456"},
    {1234567.0, "#,##0", "1,234,567"},
    {12345678.0, "#,##0", "12,345,678"},
    {123456789.0, "#,##0", "123,456,789"},
    {1234567890.0, "#,##0", "1,234,567,890"},
    {12345678901.0, "#,##0", "12,345,678,901"},
    {123456789012.0, "#,##0", "123,456,789,012"},
    {1234567890123.0, "#,##0", "1,234,567,890,123"},
    {-123.0, "#,##0", "-123"},
    {-1234.0, "#,##0", "-1,234"},
    {-123456.0, "#,##0", "-123,456"},
    {1000.0, "#,##0", "1,000"},
    {1000000.0, "###,##0.0", "1,000,000.0"},
    {1000000.0, "###,###,##0.0", "1,000,000.0"},
    // no groups without a comma
    {1234567.0, "0", "1234567"},
    {1234567.891, "##0.00", "1234567.89"},
    {1234.5, "#0.00", "1234.50"},
    {1234.5, "####", "1235"},
    // the pictures of the catalogue
    {1234567.891, "#,##0.0", "1,234,567.9"},
    {1234567.891, "#,##0", "1,234,568"},
    {1234567.891, "#,##0.00", "1,234,567.89"},
    {1234567.891, "###,##0.0", "1,234,567.9"},
    {0.0, "#,##0.0", "0.0"},
    {0.0, "#,##0.00", "0.00"},
    {0.0, "##0.00", "0.00"},
    {0.0, "##0.0", "0.0"},
    {0.0, "#0.00", "0.00"},
    {0.0, "#0", "0"},
    {0.0, "0.000", "0.000"},
    {0.0, "0", "0"},
    {5.0, "##0.00", "5.00"},
    {0.5, "##0.00", "0.50"},
    {0.5, "#0.00", "0.50"},
    {0.95, "0.000", "0.950"},
    {-1.037, "0.000", "-1.037"},
    {-1.28155, "0.000", "-1.282"},
    {85.0, "##0.0", "85.0"},
    {7.0, "#0", "7"},
    {5e6, "#,##0", "5,000,000"},
    // a place that always shows, and all to the right of it
    {5.0, "000", "005"},
    {1234.0, "000", "1234"},
    {-5.0, "000", "-005"},
    {0.0, "00.0", "00.0"},
    {5.0, "0,000", "0,005"},
    {5.0, "0##", "005"},
    {5.0, "#0##", "005"},
    {5.0, "#,0##", "005"},
    {5.0, "0,###", "0,005"},
    // more places than digits
    {1.0 / 3.0, "0.00000000000000000000", "0.33333333333333300000"},
    {1.5, "0.000000", "1.500000"},
    // an empty picture, or that of text, leaves a number's own text
    {0.1 + 0.2, "", "0.3"},
    {0.1 + 0.2, "@", "0.3"},
    {1234567.5, "@", "1234567.5"},
    {-0.0, "@", "0"},
};

TEST(NumberPictureTest, ANumberInAPicture) {
    for (const Row& row : kRows) {
        EXPECT_EQ(FormatNumber(row.number, row.picture), row.text)
            << row.number << " in \"" << row.picture << '"';
    }
}

std::string Repeated(std::string_view text, std::size_t times) {
    std::string all;
    for (std::size_t i = 0; i < times; ++i) all += text;
    return all;
}

TEST(NumberPictureTest, AVeryLargeNumberHasAllItsPlaces) {
    EXPECT_EQ(FormatNumber(1e300, "#,##0"), "1" + Repeated(",000", 100));
    EXPECT_EQ(FormatNumber(-1e300, "0.00"), "-1" + Repeated("0", 300) + ".00");
    // 1.7976931348623157e308 has 309 places, of which 15 are told.
    EXPECT_EQ(FormatNumber(std::numeric_limits<double>::max(), "0"), "179769313486232" + Repeated("0", 294));
    EXPECT_EQ(FormatNumber(123456789012345678.0, "#,##0"), "123,456,789,012,346,000");
    EXPECT_EQ(FormatNumber(999999999999999.0, "#,##0.0"), "999,999,999,999,999.0");
    EXPECT_EQ(FormatNumber(9999999999999998.0, "#,##0"), "10,000,000,000,000,000");
}

// --- the same by whole numbers ----------------------------------------------------------------------

/// A picture and what the test has to know of it.
struct Shape {
    std::string_view picture;
    int decimals;
    bool grouped;
};

constexpr Shape kShapes[] = {
    {"#,##0", 0, true},      {"#,##0.0", 1, true},   {"#,##0.00", 2, true}, {"###,###,##0.0", 1, true},
    {"0", 0, false},         {"##0.0", 1, false},    {"#0.00", 2, false},   {"0.000", 3, false},
    {"#,##0.0000", 4, true}, {"0.000000", 6, false},
};

std::uint64_t PowerOfTen(int exponent) {
    std::uint64_t power = 1;
    for (int i = 0; i < exponent; ++i) power *= 10;
    return power;
}

std::string Padded(std::uint64_t number, int width) {
    std::string text = std::to_string(number);
    while (text.size() < static_cast<std::size_t>(width)) text.insert(text.begin(), '0');
    return text;
}

std::string WithGroups(std::uint64_t number) {
    if (number < 1000) return std::to_string(number);
    return WithGroups(number / 1000) + "," + Padded(number % 1000, 3);
}

/// The text of `integer` / 10^`scale`, in whole numbers alone. Zero has no sign.
std::string TextByWholeNumbers(std::uint64_t integer, int scale, bool negative, const Shape& shape) {
    std::uint64_t scaled = 0;
    if (scale > shape.decimals) {
        const std::uint64_t divisor = PowerOfTen(scale - shape.decimals);
        scaled = (integer + divisor / 2) / divisor;
    } else {
        scaled = integer * PowerOfTen(shape.decimals - scale);
    }
    const std::uint64_t one = PowerOfTen(shape.decimals);
    std::string text = negative && scaled != 0 ? "-" : "";
    text += shape.grouped ? WithGroups(scaled / one) : std::to_string(scaled / one);
    if (shape.decimals > 0) text += "." + Padded(scaled % one, shape.decimals);
    return text;
}

TEST(NumberPictureTest, TheCalculationByWholeNumbersIsItselfRight) {
    EXPECT_EQ(TextByWholeNumbers(25, 1, false, {"", 0, true}), "3");
    EXPECT_EQ(TextByWholeNumbers(1005, 3, true, {"", 2, true}), "-1.01");
    EXPECT_EQ(TextByWholeNumbers(99995, 2, false, {"", 1, true}), "1,000.0");
    EXPECT_EQ(TextByWholeNumbers(4, 1, true, {"", 0, true}), "0");
    EXPECT_EQ(TextByWholeNumbers(1234567, 0, false, {"", 2, false}), "1234567.00");
    EXPECT_EQ(TextByWholeNumbers(1000007, 0, false, {"", 0, true}), "1,000,007");
}

TEST(NumberPictureTest, ADecimalOfTwelveDigitsIsRoundedAsByWholeNumbers) {
    std::mt19937_64 random(19930101);
    for (int i = 0; i < 50000; ++i) {
        const std::uint64_t integer = random() % PowerOfTen(1 + static_cast<int>(random() % 12));
        const int scale = static_cast<int>(random() % 13);
        const bool negative = random() % 4 == 0;
        // Both are whole and below 2^53, so that the quotient is the double nearest to the decimal.
        const double magnitude = static_cast<double>(integer) / static_cast<double>(PowerOfTen(scale));
        const double number = negative ? -magnitude : magnitude;
        for (const Shape& shape : kShapes) {
            ASSERT_EQ(FormatNumber(number, shape.picture),
                      TextByWholeNumbers(integer, scale, negative, shape))
                << integer << "e-" << scale << " in \"" << shape.picture << '"';
        }
    }
}

TEST(NumberPictureTest, AHalfIsRoundedAwayFromZeroWhateverItsDouble) {
    // Every decimal that ends in the half of the last place, up to 10000.
    for (std::uint64_t integer = 5; integer < 10000000; integer += 10) {
        const double number = static_cast<double>(integer) / 1000.0;
        ASSERT_EQ(FormatNumber(number, "0.00"), TextByWholeNumbers(integer, 3, false, {"", 2, false}))
            << integer;
    }
}

// --- texts and pictures -----------------------------------------------------------------------------

struct TextRow {
    std::string_view text;
    std::string_view picture;
    std::string_view shown;
};

constexpr TextRow kTextRows[] = {
    {"5250", "#,##0", "5,250"},
    {"5,250", "#,##0", "5,250"},
    {"5,250", "0.0", "5250.0"},
    {"-1234.56", "#,##0.0", "-1,234.6"},
    {"1e3", "#,##0", "1,000"},
    {"1d3", "#,##0", "1,000"},
    {" 7 ", "0.00", "7.00"},
    {".5", "0.00", "0.50"},
    {"5.", "0.00", "5.00"},
    {"2.5", "#,##0", "3"},
    {"1.005", "0.00", "1.01"},
    {"-0.001", "0.00", "0.00"},
    {"0", "###,###,###", ""},
    {"1e-400", "0.00", "0.00"},
    // what is not numeric passes through
    {"", "#,##0", ""},
    {" ", "#,##0", " "},
    {"abc", "#,##0", "abc"},
    {"12abc", "#,##0", "12abc"},
    {"12%", "0.00", "12%"},
    {"$12", "0.00", "$12"},
    {"1,,2", "0.00", "1,,2"},
    {"1e999", "0.00", "1e999"},
    {"inf", "0.00", "inf"},
    {"-", "0", "-"},
    // and so does every text in a picture of text
    {"007", "@", "007"},
    {"007", "", "007"},
    {" 1,234 ", "@", " 1,234 "},
    {"abc", "", "abc"},
};

TEST(NumberPictureTest, ATextInAPicture) {
    for (const TextRow& row : kTextRows) {
        EXPECT_EQ(FormatText(row.text, row.picture), row.shown)
            << '"' << row.text << "\" in \"" << row.picture << '"';
    }
}

TEST(NumberPictureTest, APictureIsKnownByItsPlaces) {
    for (const std::string_view picture :
         {"", "@", "0", "#", "#0", "##0", "###", "0.0", "#0.00", "##0.000", "#,##0", "#,##0.0", "###,##0.0",
          "###,###,###", "###,###,##0.00", "0,000", "#.0", "0.0000000000"}) {
        EXPECT_TRUE(IsNumberPicture(picture)) << '"' << picture << '"';
    }
    for (const std::string_view picture :
         {" ",       ".",  ",",   ".0", "0.", "#,##0.",         "0.#",  "0.0#",  "#,##0.0.0", "0..0",
          "0,0.0,0", "0 ", " 0",  "0%", "$0", "0.0%",           "0e0",  "0E+00", "-0",        "(0)",
          "@@",      "0@", "abc", "1",  "9",  "General Number", "0;-0", "\"0\"", ",.0"}) {
        EXPECT_FALSE(IsNumberPicture(picture)) << '"' << picture << '"';
    }
}

}  // namespace
}  // namespace kelvor::test
