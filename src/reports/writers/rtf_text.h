#pragma once

#include <string>
#include <string_view>

namespace kelvor {

/// A text in Rich Text Format: its braces and backslashes, letters beyond ASCII by their UTF-16 numbers with
/// a question mark for readers that do not know them, line breaks as `\line`.
std::string RtfText(std::string_view text);

/// A length in points as twips, 1/1440 in.
std::string Twips(double points);

}  // namespace kelvor
