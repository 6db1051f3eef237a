#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace kelvor {

/// Takes the character at the head of a UTF-8 text that is not empty; what is no character gives U+FFFD and
/// takes one byte.
char32_t TakeCharacter(std::string_view& text);

/// Appends a character in UTF-8.
void AppendCharacter(std::string& text, char32_t character);

/// A text from anywhere as a document may hold it: valid UTF-8 in which line breaks are "\n", and other
/// control characters are blanks.
std::string CleanText(std::string_view text);

/// How many places a text takes where each letter has one place: letters of East Asia have two, marks that
/// stand on the letter before them have none.
std::size_t DisplayWidth(std::string_view text);

}  // namespace kelvor
