// Any text and any double through the conversions between numbers and texts. An input is a picture on its
// first line and a text behind it; the text's first eight bytes are a double too.

#include <algorithm>
#include <cmath>
#include <cstring>

#include "fuzz_target.h"
#include "platform/number_picture.h"
#include "platform/number_text.h"

namespace kelvor::test {
namespace {

constexpr std::size_t kLongestInput = 4096;
constexpr std::size_t kLongestPicture = 64;

void CheckText(const std::string& text) {
    Require(std::isfinite(Val(text)), "Val gives a number");
    Require(std::isfinite(ParseNumber(text)), "ParseNumber gives a number");
    Require(FormatText(text, "@") == text && FormatText(text, "") == text, "a text picture changes nothing");
    if (!IsNumeric(text)) return;
    const std::string again = ExactNumberText(ParseNumber(text));
    Require(IsNumeric(again) && ParseNumber(again) == ParseNumber(text),
            "a numeric text survives its number");
    Require(IsNumeric(" " + text + " "), "blanks around a number do not matter");
}

void CheckDouble(double value) {
    const std::string exact = ExactNumberText(value);
    Require(IsNumeric(exact), "an exact text is numeric");
    Require(Val(exact) == value && ParseNumber(exact) == value, "an exact text reads back: " + exact);
    const std::string shortest = NumberToText(value);
    Require(IsNumeric(shortest), "a short text is numeric");
    Require(std::fabs(Val(shortest) - value) <= std::fabs(value) * 1e-14,
            "a short text is near: " + shortest);
}

void CheckPicture(const std::string& picture, double value) {
    const std::string shown = FormatNumber(value, picture);
    if (picture.empty() || picture == "@") {
        Require(shown == NumberToText(value), "a text picture shows the shortest text");
        return;
    }
    Require(shown.find_first_not_of("0123456789,.-") == std::string::npos,
            "a shown number is digits: " + shown);
    const bool isZero = shown.find_first_of("123456789") == std::string::npos;
    Require(!isZero || shown.find('-') == std::string::npos, "zero has no sign: " + shown);
    if (std::fabs(value) > 1e12) return;
    const std::size_t point = picture.find('.');
    const auto places = point == std::string::npos ? 0.0 : static_cast<double>(picture.size() - point - 1);
    const double half = 0.5 * std::pow(10.0, -places);
    Require(std::fabs(ParseNumber(shown) - value) <= half * (1 + 1e-9) + std::fabs(value) * 1e-14,
            "a shown number is rounded to its picture: " + shown);
}

}  // namespace

std::vector<std::string> Seeds() {
    return {"#,##0.0\n1,234.5", "#0.00\n-0.005", "###,###,###\n 123456789 ",
            "@\n007",           "\n1.5e-3",      "#,##0\n+12,345,678.9d+02"};
}

int FuzzNumberText(const std::uint8_t* data, std::size_t size) {
    if (size > kLongestInput) return 0;
    const std::string input = ToText(data, size);
    const std::size_t line = std::min(input.find('\n'), input.size());
    const std::string picture = input.substr(0, line);
    const std::string text = input.substr(std::min(line + 1, input.size()));
    CheckText(text);

    double value = ParseNumber(text);
    for (int pass = 0; pass < 2; ++pass) {
        CheckDouble(value);
        if (picture.size() <= kLongestPicture && IsNumberPicture(picture)) {
            CheckPicture(picture, value);
            if (!IsNumeric(text)) Require(FormatText(text, picture) == text, "a text passes any picture");
        }
        if (text.size() < sizeof value) break;
        std::memcpy(&value, text.data(), sizeof value);
        if (!std::isfinite(value)) break;
    }
    return 0;
}

}  // namespace kelvor::test

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    return kelvor::test::FuzzNumberText(data, size);
}
