#pragma once

#include <string>

namespace kelvor::test {

/// A language for tests, as a PO file: English with each text of the catalogue of texts in brackets. So what
/// has no bracket is no text of the catalogue.
std::string BracketedLanguage();

bool HasBracket(const std::string& text);

/// True of a text that shows the same in every language: it is in `tests/scripts/alike_texts.txt`, whose
/// lines are patterns.
bool IsAlikeInEveryLanguage(const std::string& text);

/// True if two letters stand side by side.
bool HasWord(const std::string& text);

}  // namespace kelvor::test
