#include "make_data/text_table.h"

#include <algorithm>
#include <cstddef>

#include "platform/text.h"

namespace kelvor {

namespace {

using Cells = std::vector<std::string_view>;

/// Where a line of a file stands, for a message.
std::string PlaceOf(const std::string& name, std::size_t line) {
    return name + ", line " + std::to_string(line);
}

std::optional<std::string> Unescape(const TextRow& row, std::string_view cell) {
    if (cell.empty()) return std::nullopt;
    std::string text;
    for (std::size_t i = 0; i < cell.size(); ++i) {
        if (cell[i] != '\\') {
            text.push_back(cell[i]);
            continue;
        }
        const char next = ++i < cell.size() ? cell[i] : '\0';
        switch (next) {
            case 's':
                text.push_back(' ');
                break;
            case 't':
                text.push_back('\t');
                break;
            case 'n':
                text.push_back('\n');
                break;
            case '\\':
                text.push_back('\\');
                break;
            default:
                row.Refuse(R"(an escape is none of \s, \t, \n, \\)");
        }
    }
    return text;
}

Cells SplitCells(std::string_view line) {
    Cells cells;
    for (;;) {
        const std::size_t tab = line.find('\t');
        cells.push_back(TrimBlanks(line.substr(0, tab)));
        if (tab == std::string_view::npos) return cells;
        line.remove_prefix(tab + 1);
    }
}

/// The lines of a table, split into cells as they are written; the first one has the names of the columns.
std::vector<Cells> SplitLines(const std::string& name, std::string_view content) {
    std::vector<Cells> lines;
    const auto fail = [&](const std::string& fault) {
        throw TextTableError(PlaceOf(name, std::max<std::size_t>(1, lines.size())) + ": " + fault);
    };
    while (!content.empty()) {
        const std::size_t end = std::min(content.find('\n'), content.size());
        lines.push_back(SplitCells(content.substr(0, end)));
        content.remove_prefix(std::min(end + 1, content.size()));
        const Cells& columns = lines.front();
        if (std::count(columns.begin(), columns.end(), "") > 0) fail("a column has no name");
        if (lines.back().size() == columns.size()) continue;
        fail(std::to_string(lines.back().size()) + " cells for " + std::to_string(columns.size()) +
             " columns");
    }
    if (lines.empty()) fail("no column names");
    return lines;
}

/// The number of a line's cells up to its last filled one.
std::size_t FilledCells(const Cells& line) {
    const auto last =
        std::find_if(line.rbegin(), line.rend(), [](std::string_view cell) { return !cell.empty(); });
    return static_cast<std::size_t>(line.rend() - last);
}

/// The letters of a text, each of which may be several bytes long.
std::size_t LettersOf(std::string_view text) {
    return static_cast<std::size_t>(std::count_if(
        text.begin(), text.end(), [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; }));
}

}  // namespace

void TextRow::Refuse(const std::string& fault) const { throw TextTableError(place + ": " + fault); }

std::size_t TextTable::ColumnOf(std::string_view column) const {
    const auto found = std::find(columns.begin(), columns.end(), column);
    if (found == columns.end()) throw TextTableError(name + ": no column " + std::string(column));
    return static_cast<std::size_t>(found - columns.begin());
}

std::optional<std::string>& TextTable::Cell(TextRow& row, std::string_view column) const {
    return row.cells[ColumnOf(column)];
}

void TextTable::AddColumns(const std::vector<std::string>& added) {
    columns.insert(columns.end(), added.begin(), added.end());
    for (TextRow& row : rows) row.cells.resize(columns.size());
}

TextTable ParseTextTable(const std::string& name, std::string_view content) {
    const std::vector<Cells> lines = SplitLines(name, content);
    const Cells& columns = lines.front();
    TextTable table;
    table.name = name;
    table.columns.assign(columns.begin(), columns.end());
    for (std::size_t line = 1; line < lines.size(); ++line) {
        TextRow& row = table.rows.emplace_back();
        row.place = PlaceOf(name, line + 1);
        for (const std::string_view cell : lines[line]) row.cells.push_back(Unescape(row, cell));
    }
    return table;
}

std::string AlignTextTable(const std::string& name, std::string_view content) {
    const std::vector<Cells> lines = SplitLines(name, content);
    std::vector<std::size_t> widths(lines.front().size());
    for (const Cells& line : lines) {
        for (std::size_t i = 0; i < line.size(); ++i) widths[i] = std::max(widths[i], LettersOf(line[i]));
    }
    std::string aligned;
    for (const Cells& line : lines) {
        const std::size_t filled = FilledCells(line);
        for (std::size_t i = 0; i < line.size(); ++i) {
            aligned += line[i];
            if (i + 1 < filled) aligned.append(widths[i] - LettersOf(line[i]), ' ');
            aligned += i + 1 < line.size() ? '\t' : '\n';
        }
    }
    return aligned;
}

}  // namespace kelvor
