#include "reports/writers/html_writer.h"

#include <string_view>

#include "drawing/svg.h"
#include "platform/markup.h"
#include "reports/writers/base64.h"

namespace kelvor {

namespace {

constexpr std::string_view kStyle = R"(
body { font-family: "DejaVu Sans", Arial, sans-serif; font-size: 10pt; margin: 2em auto; max-width: 50em; padding: 0 1em; }
header, footer { color: #555; display: flex; justify-content: space-between; font-size: 9pt; }
header { border-bottom: 1px solid #999; } footer { border-top: 1px solid #999; margin-top: 2em; }
h1 { font-size: 16pt; } h2 { font-size: 12pt; margin-bottom: 0.4em; } h3 { font-size: 10pt; }
h1, h2, h3, thead { break-after: avoid; }
dl { display: grid; grid-template-columns: minmax(12em, 40%) 1fr auto; gap: 0.2em 1em; margin: 0; }
dl.numbers { grid-template-columns: minmax(12em, 40%) 10em 1fr; } dl.numbers dt + dd { text-align: right; }
dt { color: #333; } dd { margin: 0; overflow-wrap: anywhere; }
p, dd, td { white-space: pre-line; }
table { border-collapse: collapse; width: 100%; } tr { break-inside: avoid; }
th, td { border-bottom: 1px solid #ccc; padding: 0.2em 0.5em; text-align: left; vertical-align: top; }
th { border-bottom: 1px solid #333; vertical-align: bottom; } .number { text-align: right; }
svg { height: auto; max-width: 100%; }
)";

std::string Tagged(std::string_view tag, std::string_view text, std::string_view attributes = {}) {
    const std::string name(tag);
    return "<" + name + std::string(attributes) + ">" + EscapedMarkup(text) + "</" + name + ">";
}

std::string Edge(std::string_view tag, const PageEdge& edge) {
    if (edge.IsEmpty()) return {};
    const std::string name(tag);
    return "<" + name + ">" + Tagged("span", edge.left) + Tagged("span", edge.middle) +
           Tagged("span", edge.right) + "</" + name + ">\n";
}

/// Writes each kind of block.
struct BlockWriter {
    std::string& page;

    void operator()(const blocks::Heading& heading) {
        page += Tagged("h" + std::to_string(heading.level), heading.text) + "\n";
    }

    void operator()(const blocks::Paragraph& paragraph) { page += Tagged("p", paragraph.text) + "\n"; }

    void operator()(const blocks::ValueList& list) {
        const bool numbers = list.alignment == Alignment::Right;
        page += numbers ? "<dl class=\"numbers\">\n" : "<dl>\n";
        for (const blocks::ValueList::Row& row : list.rows) {
            page += Tagged("dt", row.label) + Tagged("dd", row.value) + Tagged("dd", row.unit) + "\n";
        }
        page += "</dl>\n";
    }

    void operator()(const blocks::Table& table) {
        page += "<table>\n<thead><tr>";
        for (const blocks::Table::Column& column : table.columns)
            page += Tagged("th", column.heading, ClassOf(column));
        page += "</tr></thead>\n<tbody>\n";
        for (const std::vector<std::string>& row : table.rows) {
            page += "<tr>";
            for (std::size_t i = 0; i < row.size(); ++i)
                page += Tagged("td", row[i], ClassOf(table.columns[i]));
            page += "</tr>\n";
        }
        page += "</tbody>\n</table>\n";
    }

    void operator()(const blocks::Picture& picture) {
        constexpr double kDotsPerPoint = 96.0 / 72.0;
        page += "<p><img src=\"data:image/png;base64," + Base64(picture.png) + "\" alt=\"" +
                EscapedMarkup(picture.words) + "\" width=\"" +
                std::to_string(static_cast<int>(picture.widthPoints * kDotsPerPoint)) + "\"/></p>\n";
    }

    void operator()(const blocks::Drawing& drawing) { page += "<p>" + ToInlineSvg(drawing.scene) + "</p>\n"; }

    static std::string_view ClassOf(const blocks::Table::Column& column) {
        return column.alignment == Alignment::Right ? " class=\"number\"" : "";
    }
};

}  // namespace

std::string WriteHtml(const Document& document) {
    std::string page =
        "<!DOCTYPE html>\n<html xmlns=\"http://www.w3.org/1999/xhtml\" lang=\"en\">\n<head>\n"
        "<meta charset=\"utf-8\"/>\n";
    page +=
        Tagged("title", document.title) + "\n<style>" + std::string(kStyle) + "</style>\n</head>\n<body>\n";
    page += Edge("header", document.head);
    for (const Block& block : document.blocks) std::visit(BlockWriter{page}, block);
    page += Edge("footer", document.foot);
    return page + "</body>\n</html>\n";
}

}  // namespace kelvor
