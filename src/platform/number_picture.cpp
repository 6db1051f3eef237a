#include "platform/number_picture.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdlib>

#include "platform/number_text.h"

namespace kelvor {

namespace {

constexpr int kSignificantDigits = 15;

struct Picture {
    std::size_t leastIntegerDigits = 0;
    std::size_t fractionDigits = 0;
    bool grouped = false;
};

Picture ReadPicture(std::string_view text) {
    const std::size_t point = std::min(text.find('.'), text.size());
    const std::string_view integerPart = text.substr(0, point);
    Picture picture;
    // A place to the right of one that always shows always shows too.
    const std::string_view shown = integerPart.substr(std::min(integerPart.find('0'), integerPart.size()));
    picture.leastIntegerDigits =
        shown.size() - static_cast<std::size_t>(std::count(shown.begin(), shown.end(), ','));
    picture.grouped = integerPart.find(',') != std::string_view::npos;
    picture.fractionDigits = point == text.size() ? 0 : text.size() - point - 1;
    return picture;
}

/// A decimal number: `digits` with the point after the first `integerDigits` of them.
struct Decimal {
    std::string digits;
    int integerDigits = 0;
};

/// The magnitude of a value at 15 significant digits.
Decimal ToDecimal(double value) {
    std::array<char, 64> buffer{};
    const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), std::fabs(value),
                                      std::chars_format::scientific, kSignificantDigits - 1);
    const std::string text(buffer.data(), result.ptr);
    const std::size_t exponentAt = text.find('e');
    Decimal decimal;
    decimal.digits = text.substr(0, 1) + text.substr(2, exponentAt - 2);
    decimal.integerDigits = std::atoi(text.c_str() + exponentAt + 1) + 1;
    return decimal;
}

/// Rounds half away from zero to `fractionDigits` and pads with zeros, so that the digits are exactly
/// the integer part and the fraction.
void RoundTo(Decimal& decimal, std::size_t fractionDigits) {
    if (decimal.integerDigits < 0) {
        decimal.digits.insert(0, static_cast<std::size_t>(-decimal.integerDigits), '0');
        decimal.integerDigits = 0;
    }
    const std::size_t kept = static_cast<std::size_t>(decimal.integerDigits) + fractionDigits;
    if (decimal.digits.size() <= kept) {
        decimal.digits.append(kept - decimal.digits.size(), '0');
        return;
    }
    const bool up = decimal.digits[kept] >= '5';
    decimal.digits.resize(kept);
    if (!up) return;
    auto digit = decimal.digits.rbegin();
    while (digit != decimal.digits.rend() && *digit == '9') *digit++ = '0';
    if (digit != decimal.digits.rend()) {
        ++*digit;
    } else {
        decimal.digits.insert(0, 1, '1');
        ++decimal.integerDigits;
    }
}

std::string Group(const std::string& digits) {
    std::string grouped;
    for (std::size_t i = 0; i < digits.size(); ++i) {
        if (i > 0 && (digits.size() - i) % 3 == 0) grouped.push_back(',');
        grouped.push_back(digits[i]);
    }
    return grouped;
}

}  // namespace

bool IsNumberPicture(std::string_view picture) {
    if (IsTextPicture(picture)) return true;
    const std::size_t point = std::min(picture.find('.'), picture.size());
    const std::string_view integerPart = picture.substr(0, point);
    const bool hasPlace = integerPart.find_first_of("#0") != std::string_view::npos;
    if (!hasPlace || integerPart.find_first_not_of("#0,") != std::string_view::npos) return false;
    if (point == picture.size()) return true;
    const std::string_view fraction = picture.substr(point + 1);
    return !fraction.empty() && fraction.find_first_not_of('0') == std::string_view::npos;
}

std::string FormatNumber(double value, std::string_view pictureText) {
    if (IsTextPicture(pictureText)) return NumberToText(value);
    const Picture picture = ReadPicture(pictureText);
    Decimal decimal = ToDecimal(value);
    RoundTo(decimal, picture.fractionDigits);

    std::string integerPart = decimal.digits.substr(0, static_cast<std::size_t>(decimal.integerDigits));
    integerPart.erase(0, std::min(integerPart.find_first_not_of('0'), integerPart.size()));
    if (integerPart.size() < picture.leastIntegerDigits) {
        integerPart.insert(0, picture.leastIntegerDigits - integerPart.size(), '0');
    }
    const std::string fraction = decimal.digits.substr(static_cast<std::size_t>(decimal.integerDigits));
    const bool isZero = decimal.digits.find_first_not_of('0') == std::string::npos;

    std::string text = std::signbit(value) && !isZero ? "-" : "";
    text += picture.grouped ? Group(integerPart) : integerPart;
    if (!fraction.empty()) text += "." + fraction;
    return text;
}

std::string FormatText(std::string_view text, std::string_view picture) {
    if (IsTextPicture(picture) || !IsNumeric(text)) return std::string(text);
    return FormatNumber(ParseNumber(text), picture);
}

}  // namespace kelvor
