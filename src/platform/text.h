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
        const char* const letters = name.data();
        const std::size_t size = name.size();
        std::uint64_t hash = size;
        if (size <= kWord) return static_cast<std::size_t>(Mix(hash, ShortWord(letters, size)));
        for (std::size_t place = 0; place + kWord < size; place += kWord)
            hash = Mix(hash, Word(letters + place));
        return static_cast<std::size_t>(Mix(hash, Word(letters + size - kWord)));
    }

  private:
    static constexpr std::size_t kWord = sizeof(std::uint64_t);
    static constexpr std::size_t kHalf = sizeof(std::uint32_t);

    /// The bit in which a letter's cases differ is set in each, also in what is no letter, which at worst
    /// gives two names one hash.
    static constexpr std::uint64_t kCaseBits = 0x2020202020202020ULL;

    /// Eight letters as a number.
    static std::uint64_t Word(const char* letters) {
        std::uint64_t word = 0;
        std::memcpy(&word, letters, kWord);
        return word | kCaseBits;
    }

    /// As many letters as there are, up to eight; some of four or more twice.
    static std::uint64_t ShortWord(const char* letters, std::size_t size) {
        if (size >= kHalf) {
            std::uint32_t first = 0;
            std::uint32_t last = 0;
            std::memcpy(&first, letters, kHalf);
            std::memcpy(&last, letters + size - kHalf, kHalf);
            return (std::uint64_t{first} << 32U | last) | kCaseBits;
        }
        std::uint64_t word = 0;
        for (std::size_t i = 0; i < size; ++i) word = word << 8U | static_cast<unsigned char>(letters[i]);
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
