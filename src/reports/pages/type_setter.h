#pragma once

#include <string_view>
#include <vector>

#include "reports/pages/handles.h"

namespace kelvor {

/// How a text looks. Sizes in points.
struct TextStyle {
    double size = 9.0;
    bool bold = false;
    double grey = 0.0;  // 0 black, 1 white
};

/// A line of a text that was broken, in points. `ascent` is from its top to its base line.
struct SetLine {
    SharedLayout layout;
    int number = 0;  // of the line in the layout
    double width = 0.0;
    double ascent = 0.0;
    double height = 0.0;
    double grey = 0.0;
};

/// Sets texts in lines. Places of letters do not depend on the device, so a page breaks everywhere alike.
/// Letters that the font lacks come from any other font that has them; no two letters melt into one sign, so
/// that the text can be found again.
class TypeSetter {
  public:
    TypeSetter();

    /// Breaks a text at its line breaks, and where needed to keep to a width: between words, or in a word
    /// that is wider. At least one line.
    [[nodiscard]] std::vector<SetLine> Set(std::string_view text, const TextStyle& style, double width) const;

    /// One line of a width at most, cut with three dots; line breaks are blanks.
    [[nodiscard]] SetLine SetOne(std::string_view text, const TextStyle& style, double width) const;

    /// The width of the longest line of a text that is broken nowhere else than at its line breaks.
    [[nodiscard]] double Natural(std::string_view text, const TextStyle& style) const;

    /// The width of the widest word of a text.
    [[nodiscard]] double WidestWord(std::string_view text, const TextStyle& style) const;

  private:
    [[nodiscard]] SharedLayout Lay(std::string_view text, const TextStyle& style) const;

    ContextHandle context_;
};

/// The letters of a line, as they stand in the text.
std::string_view LettersOf(const SetLine& line);

/// Where a letter of a line begins, by its place in the line's letters, in points from the line's left end.
double PlaceOf(const SetLine& line, std::size_t letter);

}  // namespace kelvor
