#include "platform/text.h"

#include <algorithm>
#include <optional>
#include <string>

namespace kelvor {

namespace {

/// Beyond the last character of Unicode.
constexpr char32_t kStrayByte = 0x110000;

/// The number of bytes of a UTF-8 character by its first one; 0 if none begins so.
std::size_t CharacterLength(unsigned char first) {
    if (first < 0x80) return 1;
    if (first < 0xC2) return 0;
    if (first < 0xE0) return 2;
    if (first < 0xF0) return 3;
    return first < 0xF5 ? 4 : 0;
}

/// True for a byte of a UTF-8 character behind its first one.
bool IsContinuation(char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U; }

/// Takes a character from the head of a text that is not empty.
char32_t TakeCharacter(std::string_view& text) {
    const auto first = static_cast<unsigned char>(text.front());
    const std::size_t length = CharacterLength(first);
    char32_t character = length == 1 ? first : first & (0x7FU >> length);
    bool whole = length > 0 && length <= text.size();
    for (std::size_t i = 1; whole && i < length; ++i) {
        whole = IsContinuation(text[i]);
        character = character << 6U | (static_cast<unsigned char>(text[i]) & 0x3FU);
    }
    whole = whole && character < kStrayByte;
    text.remove_prefix(whole ? length : 1);
    return whole ? character : kStrayByte + first;
}

/// The characters of a UTF-8 text, ASCII letters in lower case. A byte that is no part of a character
/// becomes a value of its own that no character has.
std::u32string FoldedCharacters(std::string_view text) {
    std::u32string characters;
    characters.reserve(text.size());
    while (!text.empty()) {
        const char32_t character = TakeCharacter(text);
        const bool capital = character >= U'A' && character <= U'Z';
        characters.push_back(capital ? character - U'A' + U'a' : character);
    }
    return characters;
}

/// What one element of a pattern, standing at `position`, makes of the character `c`.
struct ElementMatch {
    bool matches = false;
    std::size_t next = 0;  // where the following element begins
};

ElementMatch MatchList(std::u32string_view pattern, std::size_t position, char32_t c) {
    const std::size_t close = pattern.find(U']', position + 1);
    if (close == std::u32string_view::npos) return {false, pattern.size()};
    std::u32string_view list = pattern.substr(position + 1, close - position - 1);
    const bool inverted = list.starts_with(U'!');
    if (inverted) list.remove_prefix(1);
    bool found = false;
    for (std::size_t i = 0; i < list.size(); ++i) {
        const char32_t low = list[i];
        char32_t high = low;
        if (i + 2 < list.size() && list[i + 1] == U'-') {
            high = list[i + 2];
            i += 2;
        }
        found = found || (c >= low && c <= high);
    }
    return {found != inverted, close + 1};
}

ElementMatch MatchElement(std::u32string_view pattern, std::size_t position, char32_t c) {
    switch (pattern[position]) {
        case U'?':
            return {true, position + 1};
        case U'#':
            return {c >= U'0' && c <= U'9', position + 1};
        case U'[':
            return MatchList(pattern, position, c);
        default:
            return {pattern[position] == c, position + 1};
    }
}

bool Matches(std::u32string_view text, std::u32string_view pattern) {
    std::size_t t = 0;
    std::size_t p = 0;
    // Where the last `*` stands and how much text it has swallowed so far.
    std::optional<std::size_t> star;
    std::size_t swallowed = 0;
    while (t < text.size()) {
        if (p < pattern.size() && pattern[p] == U'*') {
            star = p++;
            swallowed = t;
            continue;
        }
        if (p < pattern.size()) {
            const ElementMatch match = MatchElement(pattern, p, text[t]);
            if (match.matches) {
                p = match.next;
                ++t;
                continue;
            }
        }
        if (!star) return false;
        p = *star + 1;
        t = ++swallowed;
    }
    while (p < pattern.size() && pattern[p] == U'*') ++p;
    return p == pattern.size();
}

}  // namespace

bool EqualNoCase(std::string_view a, std::string_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](char x, char y) { return FoldLetter(x) == FoldLetter(y); });
}

std::size_t NextCharacter(std::string_view text, std::size_t place) {
    if (place >= text.size()) return text.size();
    ++place;
    while (place < text.size() && IsContinuation(text[place])) ++place;
    return place;
}

std::size_t PreviousCharacter(std::string_view text, std::size_t place) {
    if (place == 0 || text.empty()) return 0;
    place = std::min(place, text.size()) - 1;
    while (place > 0 && IsContinuation(text[place])) --place;
    return place;
}

std::string_view TrimBlanks(std::string_view text) {
    constexpr std::string_view kBlanks = " \t\r\n";
    const std::size_t first = text.find_first_not_of(kBlanks);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

bool Like(std::string_view text, std::string_view pattern) {
    return Matches(FoldedCharacters(text), FoldedCharacters(pattern));
}

}  // namespace kelvor
