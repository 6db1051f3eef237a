#include "reports/writers/rtf_text.h"

#include <cmath>

#include "reports/document/characters.h"

namespace kelvor {

namespace {

constexpr char32_t kBeyondPlane = 0x10000;

/// One UTF-16 unit, which the format takes as a signed number of 16 bits.
std::string Unit(char32_t unit) {
    const long number = unit < 0x8000 ? static_cast<long>(unit) : static_cast<long>(unit) - 0x10000;
    return "\\u" + std::to_string(number) + "?";
}

std::string Character(char32_t character) {
    if (character == U'\n') return "\\line ";
    if (character == U'\\' || character == U'{' || character == U'}') {
        return {'\\', static_cast<char>(character)};
    }
    if (character < 0x80) return {static_cast<char>(character)};
    if (character < kBeyondPlane) return Unit(character);
    const char32_t beyond = character - kBeyondPlane;
    return Unit(0xD800 + (beyond >> 10)) + Unit(0xDC00 + (beyond & 0x3FF));
}

}  // namespace

std::string RtfText(std::string_view text) {
    std::string rtf;
    rtf.reserve(text.size());
    while (!text.empty()) rtf += Character(TakeCharacter(text));
    return rtf;
}

std::string Twips(double points) {
    constexpr double kTwipsPerPoint = 20.0;
    return std::to_string(std::lround(points * kTwipsPerPoint));
}

}  // namespace kelvor
