#include "platform/text.h"

#include <algorithm>
#include <optional>

namespace kelvor {

namespace {

/// What one element of a pattern, standing at `position`, makes of the character `c`.
struct ElementMatch {
    bool matches = false;
    std::size_t next = 0;  // where the following element begins
};

ElementMatch MatchList(std::string_view pattern, std::size_t position, char c) {
    const std::size_t close = pattern.find(']', position + 1);
    if (close == std::string_view::npos) return {false, pattern.size()};
    std::string_view list = pattern.substr(position + 1, close - position - 1);
    const bool inverted = list.starts_with('!');
    if (inverted) list.remove_prefix(1);
    bool found = false;
    for (std::size_t i = 0; i < list.size(); ++i) {
        const char low = FoldLetter(list[i]);
        char high = low;
        if (i + 2 < list.size() && list[i + 1] == '-') {
            high = FoldLetter(list[i + 2]);
            i += 2;
        }
        found = found || (c >= low && c <= high);
    }
    return {found != inverted, close + 1};
}

ElementMatch MatchElement(std::string_view pattern, std::size_t position, char rawCharacter) {
    const char c = FoldLetter(rawCharacter);
    switch (pattern[position]) {
        case '?':
            return {true, position + 1};
        case '#':
            return {c >= '0' && c <= '9', position + 1};
        case '[':
            return MatchList(pattern, position, c);
        default:
            return {FoldLetter(pattern[position]) == c, position + 1};
    }
}

}  // namespace

bool EqualNoCase(std::string_view a, std::string_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](char x, char y) { return FoldLetter(x) == FoldLetter(y); });
}

bool LessNoCase(std::string_view a, std::string_view b) {
    return std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end(),
                                        [](char x, char y) { return FoldLetter(x) < FoldLetter(y); });
}

std::string_view TrimBlanks(std::string_view text) {
    constexpr std::string_view kBlanks = " \t\r\n";
    const std::size_t first = text.find_first_not_of(kBlanks);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

bool Like(std::string_view text, std::string_view pattern) {
    std::size_t t = 0;
    std::size_t p = 0;
    // Where the last `*` stands and how much text it has swallowed so far.
    std::optional<std::size_t> star;
    std::size_t swallowed = 0;
    while (t < text.size()) {
        if (p < pattern.size() && pattern[p] == '*') {
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
    while (p < pattern.size() && pattern[p] == '*') ++p;
    return p == pattern.size();
}

}  // namespace kelvor
