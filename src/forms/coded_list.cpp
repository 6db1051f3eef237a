#include "forms/coded_list.h"

#include <algorithm>
#include <utility>

#include "platform/text.h"

namespace kelvor {

namespace {

bool BeginsWith(const std::string& word, const std::string& start) {
    return start.size() <= word.size() && EqualNoCase(word.substr(0, start.size()), start);
}

const LetterWord* FindWord(const std::vector<LetterWord>& words, const std::string& text) {
    const auto found = std::find_if(words.begin(), words.end(),
                                    [&](const LetterWord& word) { return EqualNoCase(word.word, text); });
    return found == words.end() ? nullptr : &*found;
}

/// The one letter that was put into a text; nothing if more than that has changed.
std::optional<char> LetterPutInto(const std::string& before, const std::string& after) {
    if (after.size() != before.size() + 1) return std::nullopt;
    const auto [rest, place] = std::mismatch(before.begin(), before.end(), after.begin());
    const bool same = std::equal(rest, before.end(), place + 1, after.end());
    return same ? std::optional<char>(*place) : std::nullopt;
}

/// The letter that was typed into an empty box, over the whole text, or into a word.
std::optional<char> TypedLetter(const std::vector<LetterWord>& words, const std::string& shown,
                                const std::string& text) {
    if (text.size() == 1) return text.front();
    return FindWord(words, shown) == nullptr ? std::nullopt : LetterPutInto(shown, text);
}

}  // namespace

std::optional<std::string> CompleteWord(const std::vector<LetterWord>& words, const std::string& shown,
                                        const std::string& text, std::string& spelt) {
    const std::optional<char> letter = TypedLetter(words, shown, text);
    if (!letter || text.size() == 1) spelt.clear();
    if (!letter) {
        const LetterWord* whole = FindWord(words, text);
        return whole == nullptr ? text : whole->word;
    }
    for (const LetterWord& word : words) {
        if (!BeginsWith(word.word, spelt + *letter)) continue;
        spelt += *letter;
        return word.word;
    }
    for (const LetterWord& word : words) {
        if (FoldLetter(word.letter) != FoldLetter(*letter)) continue;
        spelt = *letter;
        return word.word;
    }
    return std::nullopt;
}

void MakeCoded(Control& list, std::vector<LetterWord> words) {
    list.items.clear();
    for (const LetterWord& word : words) list.items.push_back(word.word);
    list.words = std::move(words);
    list.onlyItems = true;
    list.coded = true;
}

std::string WordOf(const std::vector<LetterWord>& words, std::optional<double> code) {
    for (std::size_t i = 0; i < words.size(); ++i) {
        if (code == static_cast<double>(i + 1)) return words[i].word;
    }
    return {};
}

std::optional<int> CodeOf(const std::vector<LetterWord>& words, const std::string& word) {
    for (std::size_t i = 0; i < words.size(); ++i) {
        if (words[i].word == word) return static_cast<int>(i + 1);
    }
    return std::nullopt;
}

}  // namespace kelvor
