#include "reports/document/characters.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace kelvor {

namespace {

constexpr char32_t kReplacement = 0xFFFD;

struct CharacterRange {
    char32_t first;
    char32_t last;
};

/// How a UTF-8 character begins: the bits of its first byte, how many bytes follow, and the first character
/// that needs as many.
struct Lead {
    unsigned char mask;
    unsigned char bits;
    std::size_t following;
    char32_t least;
};

constexpr std::array kLeads = {Lead{0x80, 0x00, 0, 0x0}, Lead{0xE0, 0xC0, 1, 0x80},
                               Lead{0xF0, 0xE0, 2, 0x800}, Lead{0xF8, 0xF0, 3, 0x10000}};

/// Letters of East Asia and pictures that take two places (Unicode Standard Annex 11, wide and fullwidth).
constexpr std::array kWide = {
    CharacterRange{0x1100, 0x115F},   CharacterRange{0x2E80, 0x303E},   CharacterRange{0x3041, 0xA4CF},
    CharacterRange{0xA960, 0xA97F},   CharacterRange{0xAC00, 0xD7A3},   CharacterRange{0xF900, 0xFAFF},
    CharacterRange{0xFE30, 0xFE6F},   CharacterRange{0xFF00, 0xFF60},   CharacterRange{0xFFE0, 0xFFE6},
    CharacterRange{0x1F300, 0x1F64F}, CharacterRange{0x1F900, 0x1F9FF}, CharacterRange{0x20000, 0x3FFFD}};

/// Marks that stand on the letter before them.
constexpr std::array kMarks = {CharacterRange{0x0300, 0x036F}, CharacterRange{0x200B, 0x200F},
                               CharacterRange{0x20D0, 0x20F0}, CharacterRange{0xFE00, 0xFE0F}};

template <std::size_t Count>
bool IsIn(const std::array<CharacterRange, Count>& ranges, char32_t character) {
    return std::any_of(ranges.begin(), ranges.end(), [character](const CharacterRange& range) {
        return range.first <= character && character <= range.last;
    });
}

bool IsScalar(char32_t character) {
    return character <= 0x10FFFF && (character < 0xD800 || character > 0xDFFF);
}

/// The character at the head of a text, and the number of its bytes; no bytes if there is none.
struct Decoded {
    char32_t character = kReplacement;
    std::size_t bytes = 0;
};

Decoded Decode(std::string_view text) {
    const auto first = static_cast<unsigned char>(text.front());
    const auto* const lead = std::find_if(kLeads.begin(), kLeads.end(),
                                          [first](const Lead& l) { return (first & l.mask) == l.bits; });
    if (lead == kLeads.end() || text.size() <= lead->following) return {};
    char32_t character = first & static_cast<unsigned char>(~lead->mask);
    for (std::size_t i = 1; i <= lead->following; ++i) {
        const auto byte = static_cast<unsigned char>(text[i]);
        if ((byte & 0xC0U) != 0x80U) return {};
        character = character << 6U | (byte & 0x3FU);
    }
    if (character < lead->least || !IsScalar(character)) return {};
    return {character, lead->following + 1};
}

bool IsControl(char32_t character) {
    return character < 0x20 || (character >= 0x7F && character < 0xA0) || character == 0xFFFE ||
           character == 0xFFFF;
}

/// Takes a line break in any of its spellings from the head of a text.
bool TakeLineBreak(std::string_view& text) {
    for (const std::string_view spelling : {"\r\n", "\n", "\r", "\u2028", "\u2029"}) {
        if (!text.starts_with(spelling)) continue;
        text.remove_prefix(spelling.size());
        return true;
    }
    return false;
}

}  // namespace

char32_t TakeCharacter(std::string_view& text) {
    const Decoded decoded = Decode(text);
    text.remove_prefix(std::max<std::size_t>(decoded.bytes, 1));
    return decoded.character;
}

void AppendCharacter(std::string& text, char32_t character) {
    const auto byte = [&text](std::uint32_t bits) {
        text += static_cast<char>(static_cast<unsigned char>(bits));
    };
    const auto* const lead = std::find_if(kLeads.rbegin(), kLeads.rend(),
                                          [character](const Lead& l) { return character >= l.least; })
                                 .base() -
                             1;
    byte(lead->bits | character >> 6 * lead->following);
    for (std::size_t left = lead->following; left > 0; --left) {
        byte(0x80U | (character >> 6 * (left - 1) & 0x3FU));
    }
}

std::string CleanText(std::string_view text) {
    std::string clean;
    clean.reserve(text.size());
    while (!text.empty()) {
        if (TakeLineBreak(text)) {
            clean += '\n';
            continue;
        }
        const char32_t character = TakeCharacter(text);
        AppendCharacter(clean, IsControl(character) ? U' ' : character);
    }
    return clean;
}

std::size_t DisplayWidth(std::string_view text) {
    std::size_t width = 0;
    while (!text.empty()) {
        const char32_t character = TakeCharacter(text);
        if (IsIn(kMarks, character)) continue;
        width += IsIn(kWide, character) ? 2U : 1U;
    }
    return width;
}

}  // namespace kelvor
