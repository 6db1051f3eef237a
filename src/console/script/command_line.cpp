#include "console/script/command_line.h"

#include <cstddef>

namespace kelvor {

namespace {

constexpr bool IsBlank(char c) { return c == ' ' || c == '\t' || c == '\r'; }

char Unescape(char c) {
    switch (c) {
        case '"':
        case '\\':
            return c;
        case 'n':
            return '\n';
        case 't':
            return '\t';
        default:
            throw ScriptError(std::string("unknown escape \\") + c);
    }
}

/// Takes a quoted word whose opening quote stands at `position`.
std::string TakeQuoted(std::string_view line, std::size_t& position) {
    std::string word;
    for (++position; position < line.size(); ++position) {
        if (line[position] == '"') {
            ++position;
            if (position < line.size() && !IsBlank(line[position]) && line[position] != '#')
                throw ScriptError("a blank must follow a closing quote");
            return word;
        }
        if (line[position] != '\\') {
            word.push_back(line[position]);
        } else if (++position < line.size()) {
            word.push_back(Unescape(line[position]));
        }
    }
    throw ScriptError("a quote is not closed");
}

std::string TakePlain(std::string_view line, std::size_t& position) {
    const std::size_t start = position;
    while (position < line.size() && !IsBlank(line[position])) {
        if (line[position] == '"') throw ScriptError("a quote stands inside a word");
        ++position;
    }
    return std::string(line.substr(start, position - start));
}

}  // namespace

std::vector<std::string> SplitWords(std::string_view line) {
    std::vector<std::string> words;
    std::size_t position = 0;
    for (;;) {
        while (position < line.size() && IsBlank(line[position])) ++position;
        if (position == line.size() || line[position] == '#') return words;
        words.push_back(line[position] == '"' ? TakeQuoted(line, position) : TakePlain(line, position));
    }
}

}  // namespace kelvor
