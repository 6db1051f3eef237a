#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace kelvor {

/// The numeric test for every text from a box or cell: blanks around, an optional sign, digits with
/// single commas between them, an optional fraction, an optional exponent (e, E, d or D), and a value
/// that a double can hold. No currency, hexadecimal, percent or brackets. Independent of the locale.
bool IsNumeric(std::string_view text);

/// The number at the head of a text, blanks skipped, up to the first character that cannot belong to
/// it: "12abc" is 12, "abc" is 0. A comma ends it. A number beyond a double's range counts as no
/// number and gives 0.
double Val(std::string_view text);

/// Val of the text without its commas: "1,234.5" is 1234.5.
double ParseNumber(std::string_view text);

/// A whole number of 16 bits and nothing else: digits behind an optional minus. Nothing for any other text.
std::optional<int> ParseSubscript(std::string_view text);

/// A number as a text without a picture: the shortest decimal, of at most 15 significant digits.
std::string NumberToText(double value);

/// The shortest text that reads back as the very same double, in plain digits where these are few.
std::string ExactNumberText(double value);

}  // namespace kelvor
