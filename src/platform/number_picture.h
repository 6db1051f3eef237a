#pragma once

#include <string>
#include <string_view>

namespace kelvor {

/// True for the pictures of texts, which show a value as it stands: an empty one and "@".
inline bool IsTextPicture(std::string_view picture) { return picture.empty() || picture == "@"; }

/// True for a picture that FormatNumber understands: empty, "@", or an integer part of `#`, `0` and
/// commas with at least one place, and after an optional point a fraction of `0`.
bool IsNumberPicture(std::string_view picture);

/// A number in a picture such as "#,##0.0": a comma in the integer part groups by thousands, each
/// place from the first `0` on always shows, the fraction has as many digits as the picture. Rounded
/// half away from zero on the decimal value at 15 significant digits; never "-0"; 0 in "###,###,###"
/// is empty. An empty picture and "@" give NumberToText.
std::string FormatNumber(double value, std::string_view picture);

/// A text in a picture: a numeric text is formatted as its number; any other, and any text in an empty
/// picture or "@", passes through unchanged.
std::string FormatText(std::string_view text, std::string_view picture);

}  // namespace kelvor
