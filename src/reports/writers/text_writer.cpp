#include "reports/writers/text_writer.h"

#include <algorithm>

#include "reports/document/characters.h"
#include "reports/writers/text_lines.h"

namespace kelvor {

namespace {

constexpr std::size_t kWidth = 92;
constexpr std::size_t kWidestLabel = 50;
constexpr std::size_t kWidestUnit = 20;
constexpr std::size_t kWidestColumn = 40;

/// The widest line of a text.
std::size_t WidestLine(std::string_view text) {
    std::size_t widest = 0;
    for (const std::string& line : WrapText(text, std::string_view::npos)) {
        widest = std::max(widest, DisplayWidth(line));
    }
    return widest;
}

std::string Joined(std::string_view text, std::size_t width) {
    std::string joined;
    for (const std::string& line : WrapText(text, width)) joined += line + "\n";
    return joined;
}

std::string Edge(const PageEdge& edge) {
    std::string line;
    for (const std::string& part : {edge.left, edge.middle, edge.right}) {
        if (!part.empty()) line += (line.empty() ? "" : "   ") + part;
    }
    return line.empty() ? "" : Joined(line, kWidth);
}

/// The widest of one part of a list's rows, at most so wide.
std::size_t Widest(const blocks::ValueList& list, std::string blocks::ValueList::Row::*part,
                   std::size_t most) {
    std::size_t widest = 0;
    for (const blocks::ValueList::Row& row : list.rows) widest = std::max(widest, WidestLine(row.*part));
    return std::min(widest, most);
}

std::vector<TextColumn> ColumnsOf(const blocks::Table& table) {
    std::vector<TextColumn> columns;
    for (std::size_t i = 0; i < table.columns.size(); ++i) {
        std::size_t width = WidestLine(table.columns[i].heading);
        for (const std::vector<std::string>& row : table.rows) width = std::max(width, WidestLine(row[i]));
        columns.push_back({std::min(width, kWidestColumn), table.columns[i].alignment});
    }
    return columns;
}

/// Writes each kind of block.
struct BlockWriter {
    std::string& text;

    void operator()(const blocks::Heading& heading) {
        const std::string lines = Joined(heading.text, kWidth);
        text += "\n" + lines +
                std::string(std::min(kWidth, WidestLine(heading.text)), heading.level == 1 ? '=' : '-') +
                "\n";
    }

    void operator()(const blocks::Paragraph& paragraph) { text += "\n" + Joined(paragraph.text, kWidth); }

    void operator()(const blocks::ValueList& list) {
        const std::size_t label = Widest(list, &blocks::ValueList::Row::label, kWidestLabel);
        const std::size_t unit = Widest(list, &blocks::ValueList::Row::unit, kWidestUnit);
        const std::size_t value = Widest(list, &blocks::ValueList::Row::value, kWidth - label - unit - 4);
        for (const blocks::ValueList::Row& row : list.rows) {
            text +=
                SetInColumns({row.label, row.value, row.unit}, {{label}, {value, list.alignment}, {unit}});
        }
    }

    void operator()(const blocks::Table& table) {
        const std::vector<TextColumn> columns = ColumnsOf(table);
        std::vector<std::string> headings;
        std::vector<std::string> lines;
        for (std::size_t i = 0; i < columns.size(); ++i) {
            headings.push_back(table.columns[i].heading);
            lines.emplace_back(columns[i].width, '-');
        }
        text += SetInColumns(headings, columns) + SetInColumns(lines, columns);
        for (const std::vector<std::string>& row : table.rows) text += SetInColumns(row, columns);
    }

    void operator()(const blocks::Picture& picture) {
        text += "\n" + Joined("[" + picture.words + "]", kWidth);
    }

    void operator()(const blocks::Drawing& drawing) { text += "\n" + Joined(drawing.words, kWidth); }
};

}  // namespace

std::string WriteText(const Document& document) {
    std::string text = Edge(document.head);
    for (const Block& block : document.blocks) std::visit(BlockWriter{text}, block);
    const std::string foot = Edge(document.foot);
    return text + (foot.empty() ? "" : "\n" + foot);
}

}  // namespace kelvor
