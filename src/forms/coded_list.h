#pragma once

#include <optional>
#include <string>
#include <vector>

#include "forms/control.h"

namespace kelvor {

/// What a box that completes words shows once `text` was typed where `shown` stood: a letter becomes its
/// word, and further letters of a word that is being spelt leave it. `spelt` holds the letters typed so far.
/// Nothing if the last letter is none of a word's: the caller knows what becomes of the text then.
std::optional<std::string> CompleteWord(const std::vector<LetterWord>& words, const std::string& shown,
                                        const std::string& text, std::string& spelt);

/// Makes a list one whose entries are stored by their place, from 1, and completed by their letters.
void MakeCoded(Control& list, std::vector<LetterWord> words);

/// The word of a code, and the code of a word. Empty, and nothing, for one that is none.
std::string WordOf(const std::vector<LetterWord>& words, std::optional<double> code);
std::optional<int> CodeOf(const std::vector<LetterWord>& words, const std::string& word);

}  // namespace kelvor
