#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "reports/document/document.h"

namespace kelvor {

/// Breaks a text at its line breaks, and between words into lines of at most `width` places; a longer word
/// stays whole. At least one line.
std::vector<std::string> WrapText(std::string_view text, std::size_t width);

/// A text filled up with blanks to a width; a longer one as it is.
std::string PadText(std::string_view text, std::size_t width, Alignment alignment);

/// Cells side by side, each in its column, of as many lines as the highest needs; no blanks at the line ends.
struct TextColumn {
    std::size_t width = 0;
    Alignment alignment = Alignment::Left;
};
std::string SetInColumns(const std::vector<std::string>& cells, const std::vector<TextColumn>& columns);

}  // namespace kelvor
