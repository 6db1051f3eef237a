#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
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
        std::uint64_t hash = name.size();
        while (name.size() > kWord) {
            hash = Mix(hash, TakeWord(name, kWord));
            name.remove_prefix(kWord);
        }
        return static_cast<std::size_t>(Mix(hash, TakeWord(name, name.size())));
    }

  private:
    static constexpr std::size_t kWord = sizeof(std::uint64_t);

    /// The first letters as a number. The bit in which a letter's cases differ is set in each, also in what
    /// is no letter, which at worst gives two names one hash.
    static std::uint64_t TakeWord(std::string_view name, std::size_t count) {
        constexpr std::uint64_t kCaseBits = 0x2020202020202020ULL;
        std::uint64_t word = 0;
        if (count > 0) std::memcpy(&word, name.data(), count);
        return word | kCaseBits;
    }

    static std::uint64_t Mix(std::uint64_t hash, std::uint64_t word) {
        constexpr std::uint64_t kOdd = 0x9E3779B97F4A7C15ULL;  // 2^64 by the golden ratio
        hash = (hash ^ word) * kOdd;
        return hash ^ hash >> 32U;
    }
};

struct NameEqual {
    using is_transparent = void;
    bool operator()(std::string_view a, std::string_view b) const { return a == b || EqualNoCase(a, b); }
};

}  // namespace kelvor
