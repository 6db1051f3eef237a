#include "reports/writers/text_lines.h"

#include <algorithm>

#include "reports/document/characters.h"

namespace kelvor {

namespace {

constexpr std::string_view kGap = "  ";

/// Appends one line of a text, broken between its words.
void WrapLine(std::string_view line, std::size_t width, std::vector<std::string>& lines) {
    std::string current;
    while (!line.empty()) {
        const std::size_t end = std::min(line.find(' '), line.size());
        const std::string_view word = line.substr(0, end);
        const bool fits = current.empty() || DisplayWidth(current) + 1 + DisplayWidth(word) <= width;
        if (!fits) {
            lines.push_back(current);
            current.clear();
        } else if (!current.empty()) {
            current += ' ';
        }
        current += word;
        line.remove_prefix(std::min(end + 1, line.size()));
    }
    lines.push_back(current);
}

std::string LineOfCells(const std::vector<std::vector<std::string>>& cells,
                        const std::vector<TextColumn>& columns, std::size_t lineNumber) {
    std::string line;
    for (std::size_t i = 0; i < columns.size(); ++i) {
        if (i > 0) line += kGap;
        const std::string_view part =
            lineNumber < cells[i].size() ? std::string_view(cells[i][lineNumber]) : "";
        line += PadText(part, columns[i].width, columns[i].alignment);
    }
    line.erase(line.find_last_not_of(' ') + 1);
    return line + "\n";
}

}  // namespace

std::vector<std::string> WrapText(std::string_view text, std::size_t width) {
    std::vector<std::string> lines;
    while (true) {
        const std::size_t end = text.find('\n');
        WrapLine(text.substr(0, end), width, lines);
        if (end == std::string_view::npos) return lines;
        text.remove_prefix(end + 1);
    }
}

std::string PadText(std::string_view text, std::size_t width, Alignment alignment) {
    const std::string blanks(width - std::min(width, DisplayWidth(text)), ' ');
    return alignment == Alignment::Right ? blanks + std::string(text) : std::string(text) + blanks;
}

std::string SetInColumns(const std::vector<std::string>& cells, const std::vector<TextColumn>& columns) {
    std::vector<std::vector<std::string>> wrapped;
    std::size_t most = 0;
    for (std::size_t i = 0; i < columns.size(); ++i) {
        wrapped.push_back(WrapText(cells[i], columns[i].width));
        most = std::max(most, wrapped.back().size());
    }
    std::string lines;
    for (std::size_t i = 0; i < most; ++i) lines += LineOfCells(wrapped, columns, i);
    return lines;
}

}  // namespace kelvor
