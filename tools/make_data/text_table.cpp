#include "make_data/text_table.h"

#include <algorithm>
#include <cstddef>

namespace kelvor {

namespace {

[[noreturn]] void Fail(const std::string& name, std::size_t line, const std::string& fault) {
    throw TextTableError(name + ", line " + std::to_string(line) + ": " + fault);
}

std::optional<std::string> Unescape(const std::string& name, std::size_t line, std::string_view cell) {
    if (cell.empty()) return std::nullopt;
    std::string text;
    for (std::size_t i = 0; i < cell.size(); ++i) {
        if (cell[i] != '\\') {
            text.push_back(cell[i]);
            continue;
        }
        const char next = ++i < cell.size() ? cell[i] : '\0';
        switch (next) {
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
                Fail(name, line, "an escape is none of \\t, \\n, \\\\");
        }
    }
    return text;
}

std::vector<std::string_view> SplitCells(std::string_view line) {
    std::vector<std::string_view> cells;
    for (;;) {
        const std::size_t tab = line.find('\t');
        cells.push_back(line.substr(0, tab));
        if (tab == std::string_view::npos) return cells;
        line.remove_prefix(tab + 1);
    }
}

}  // namespace

TextTable ParseTextTable(const std::string& name, std::string_view content) {
    TextTable table;
    table.name = name;
    for (std::size_t number = 1; !content.empty(); ++number) {
        const std::size_t end = std::min(content.find('\n'), content.size());
        const std::vector<std::string_view> cells = SplitCells(content.substr(0, end));
        content.remove_prefix(std::min(end + 1, content.size()));
        if (number == 1) {
            if (std::count(cells.begin(), cells.end(), "") > 0) Fail(name, number, "a column has no name");
            table.columns.assign(cells.begin(), cells.end());
            continue;
        }
        if (cells.size() != table.columns.size()) {
            Fail(name, number,
                 std::to_string(cells.size()) + " cells for " + std::to_string(table.columns.size()) +
                     " columns");
        }
        auto& row = table.rows.emplace_back();
        for (const std::string_view cell : cells) row.push_back(Unescape(name, number, cell));
    }
    if (table.columns.empty()) Fail(name, 1, "no column names");
    return table;
}

}  // namespace kelvor
