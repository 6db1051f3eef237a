#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace kelvor {

/// The lower-case form of an ASCII letter; any other character as it is. Independent of the locale.
constexpr char FoldLetter(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

/// Text comparison without regard to ASCII letter case, as names are compared everywhere.
bool EqualNoCase(std::string_view a, std::string_view b);

/// Where the character behind a place in a UTF-8 text begins, and the one before it. Bytes that are no UTF-8
/// count as characters.
std::size_t NextCharacter(std::string_view text, std::size_t place);
std::size_t PreviousCharacter(std::string_view text, std::size_t place);

std::string_view TrimBlanks(std::string_view text);

/// True if the whole of `text` matches `pattern`, without regard to case. Wild cards: `*` any run of
/// characters, `?` one character, `#` one digit, `[a-z]` one of a list and `[!a-z]` one outside it.
/// A list without its closing bracket matches nothing.
bool Like(std::string_view text, std::string_view pattern);

/// Hash and equality for hash tables keyed by name; look-ups take a string_view without a copy.
struct NameHash {
    using is_transparent = void;
    std::size_t operator()(std::string_view name) const {
        std::uint64_t hash = 14695981039346656037ULL;  // FNV-1a
        for (const char c : name) {
            hash = (hash ^ static_cast<unsigned char>(FoldLetter(c))) * 1099511628211ULL;
        }
        return static_cast<std::size_t>(hash);
    }
};

struct NameEqual {
    using is_transparent = void;
    bool operator()(std::string_view a, std::string_view b) const { return EqualNoCase(a, b); }
};

}  // namespace kelvor
