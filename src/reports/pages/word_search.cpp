#include "reports/pages/word_search.h"

#include <optional>
#include <variant>

namespace kelvor {

namespace {

/// How many bytes of `text`, from its head on, are `words` without regard to case; nothing if they are not.
std::optional<std::size_t> MatchAtHead(std::string_view text, std::string_view words) {
    const char* place = text.data();
    const char* const end = place + text.size();
    const char* const wordsEnd = words.data() + words.size();
    for (const char* word = words.data(); word < wordsEnd; word = g_utf8_next_char(word)) {
        if (place >= end) return std::nullopt;
        if (g_unichar_tolower(g_utf8_get_char(place)) != g_unichar_tolower(g_utf8_get_char(word)))
            return std::nullopt;
        place = g_utf8_next_char(place);
    }
    return static_cast<std::size_t>(place - text.data());
}

bool Holds(std::string_view text, std::string_view words) {
    for (std::size_t place = 0; place < text.size();) {
        const std::string_view rest = text.substr(place);
        if (MatchAtHead(rest, words)) return true;
        place += static_cast<std::size_t>(g_utf8_next_char(rest.data()) - rest.data());
    }
    return false;
}

void FindInLine(const PlacedLine& placed, std::string_view words, double left, double top, double height,
                std::vector<PageRectangle>& found) {
    const std::string_view letters = LettersOf(placed.line);
    for (std::size_t place = 0; place < letters.size();) {
        const std::string_view rest = letters.substr(place);
        const auto length = MatchAtHead(rest, words);
        if (length) {
            const double begin = PlaceOf(placed.line, place);
            const double end = PlaceOf(placed.line, place + *length);
            found.push_back({left + placed.left + begin, top, end - begin, height});
        }
        place += length ? *length : static_cast<std::size_t>(g_utf8_next_char(rest.data()) - rest.data());
    }
}

/// The letters of a drawing have no places of their own: the whole text counts as found.
void FindInDrawing(const PlacedStrip& placed, std::string_view words, double left, double top,
                   std::vector<PageRectangle>& found) {
    constexpr double kLetter = 0.55;  // the width of most letters, of their size
    const double scale = placed.strip->drawing.scale * placed.share;
    for (const Shape& shape : placed.strip->drawing.scene->shapes) {
        const auto* text = std::get_if<shape::Text>(&shape);
        if (text == nullptr || !Holds(text->text, words)) continue;
        const auto letters = static_cast<double>(g_utf8_strlen(text->text.c_str(), -1));
        const double length = letters * kLetter * text->size * scale;
        const double before = text->anchor == shape::Anchor::Start    ? 0.0
                              : text->anchor == shape::Anchor::Middle ? length / 2.0
                                                                      : length;
        const double x = left + text->place.x * scale;
        const double y = top + text->place.y * scale;
        const double height = text->size * scale;
        found.push_back(text->upright ? PageRectangle{x - height, y - length + before, height, length}
                                      : PageRectangle{x - before, y - height, length, height});
    }
}

}  // namespace

std::vector<PageRectangle> FindWords(const Page& page, std::string_view words, double left, double top) {
    std::vector<PageRectangle> found;
    const bool isText = g_utf8_validate(words.data(), static_cast<gssize>(words.size()), nullptr) != FALSE;
    if (words.empty() || !isText) return found;
    for (const PlacedStrip& placed : page) {
        for (const PlacedLine& line : placed.strip->lines) {
            FindInLine(line, words, left, top + placed.top, placed.strip->height, found);
        }
        if (placed.strip->drawing.scene != nullptr)
            FindInDrawing(placed, words, left, top + placed.top, found);
    }
    return found;
}

}  // namespace kelvor
