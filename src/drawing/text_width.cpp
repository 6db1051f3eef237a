#include "drawing/text_width.h"

#include "platform/text.h"

namespace kelvor {

namespace {

constexpr double kBoldWidening = 1.1;
constexpr const char* kEllipsis = "\u2026";

/// The width of a character by its class, in parts of the letters' size.
double CharacterWidth(std::string_view character) {
    constexpr double kNarrow = 0.36;
    constexpr double kUsual = 0.62;
    constexpr double kWide = 0.92;
    constexpr double kWidest = 1.0;  // whatever is no ASCII
    if (character.size() > 1) return kWidest;
    const char c = character.front();
    if (std::string_view(" .,:;'!|iljtf()[]/").find(c) != std::string_view::npos) return kNarrow;
    if (std::string_view("mwMW%@").find(c) != std::string_view::npos) return kWide;
    if (c >= 'A' && c <= 'Z') return (kUsual + kWide) / 2.0;
    return kUsual;
}

}  // namespace

double TextWidth(std::string_view text, double size, bool bold) {
    double width = 0.0;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t next = NextCharacter(text, at);
        width += CharacterWidth(text.substr(at, next - at));
        at = next;
    }
    return width * size * (bold ? kBoldWidening : 1.0);
}

std::string FitText(std::string_view text, double size, double room) {
    if (TextWidth(text, size) <= room) return std::string(text);
    const double left = room - TextWidth(kEllipsis, size);
    std::size_t end = text.size();
    while (end > 0 && TextWidth(text.substr(0, end), size) > left) end = PreviousCharacter(text, end);
    return std::string(TrimBlanks(text.substr(0, end))) + kEllipsis;
}

}  // namespace kelvor
