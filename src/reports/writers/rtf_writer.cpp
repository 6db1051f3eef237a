#include "reports/writers/rtf_writer.h"

#include <algorithm>
#include <array>
#include <numeric>

#include "reports/document/characters.h"
#include "reports/writers/rtf_text.h"

namespace kelvor {

namespace {

constexpr std::string_view kPageNumber =
    "Page {\\field{\\*\\fldinst PAGE}{\\fldrslt 1}} of {\\field{\\*\\fldinst NUMPAGES}{\\fldrslt 1}}";
// Where the labels, the numbers and the texts of a list end, of the width of the page.
constexpr double kLabelShare = 0.45;
constexpr double kNumberShare = 0.65;
constexpr double kTextShare = 0.9;
constexpr std::string_view kNormal = "\\pard\\plain\\f0\\fs18 ";

/// How a heading of each level begins: bold, its size in half points, room around it, and kept with what
/// follows.
constexpr std::array<std::string_view, 3> kHeadings = {"\\pard\\plain\\f0\\b\\fs28\\sb120\\sa120\\keepn ",
                                                       "\\pard\\plain\\f0\\b\\fs22\\sb200\\sa80\\keepn ",
                                                       "\\pard\\plain\\f0\\b\\fs18\\sb120\\sa60\\keepn "};

std::string Preamble(const Document& document, const PageSetup& setup) {
    const PointSize sheet = setup.Sheet();
    const std::string margin = Twips(setup.marginPoints);
    return "{\\rtf1\\ansi\\ansicpg1252\\deff0\\uc1{\\fonttbl{\\f0\\fswiss\\fcharset0 "
           "Arial;}}\n{\\info{\\title " +
           RtfText(document.title) + "}}\n\\paperw" + Twips(sheet.width) + "\\paperh" + Twips(sheet.height) +
           "\\margl" + margin + "\\margr" + margin + "\\margt" + margin + "\\margb" + margin + "\n";
}

/// The head or the foot of the pages: tabs in the middle and at the right.
std::string Edge(std::string_view destination, const PageEdge& edge, std::string_view atRight, double width) {
    std::string right = RtfText(edge.right);
    if (!right.empty() && !atRight.empty()) right += "   ";
    return "{\\" + std::string(destination) + "\\pard\\plain\\f0\\fs16\\tqc\\tx" + Twips(width / 2.0) +
           "\\tqr\\tx" + Twips(width) + " " + RtfText(edge.left) + "\\tab " + RtfText(edge.middle) +
           "\\tab " + right + std::string(atRight) + "\\par}\n";
}

/// A column of a row: where it ends, and how its text is set.
struct RowColumn {
    double rightEdge = 0.0;
    Alignment alignment = Alignment::Left;
};

std::string Row(const std::vector<std::string>& cells, const std::vector<RowColumn>& columns,
                std::string_view rowWords, std::string_view textWords) {
    std::string row = "\\trowd\\trgaph70\\trkeep" + std::string(rowWords);
    for (const RowColumn& column : columns) row += "\\cellx" + Twips(column.rightEdge);
    row += "\n";
    for (std::size_t i = 0; i < columns.size(); ++i) {
        row += "\\pard\\plain\\intbl\\f0\\fs18" + std::string(textWords) +
               (columns[i].alignment == Alignment::Right ? "\\qr " : "\\ql ") + RtfText(cells[i]) +
               "\\cell\n";
    }
    return row + "\\row\n";
}

/// Shares the width of the page among columns by their longest texts, none less than a third of an even
/// share.
std::vector<RowColumn> Share(const blocks::Table& table, double width) {
    std::vector<double> wanted;
    for (std::size_t i = 0; i < table.columns.size(); ++i) {
        std::size_t longest = DisplayWidth(table.columns[i].heading) / 2;
        for (const auto& row : table.rows) longest = std::max(longest, DisplayWidth(row[i]));
        wanted.push_back(static_cast<double>(std::clamp<std::size_t>(longest, 6, 40)));
    }
    const double all = std::accumulate(wanted.begin(), wanted.end(), 0.0);
    std::vector<RowColumn> columns;
    double edge = 0.0;
    for (std::size_t i = 0; i < wanted.size(); ++i) {
        edge += width * wanted[i] / all;
        columns.push_back({edge, table.columns[i].alignment});
    }
    return columns;
}

std::string Hexadecimal(std::string_view bytes) {
    constexpr std::string_view kDigits = "0123456789abcdef";
    std::string digits;
    digits.reserve(bytes.size() * 2);
    for (const char byte : bytes) {
        digits += kDigits[static_cast<unsigned char>(byte) >> 4U];
        digits += kDigits[static_cast<unsigned char>(byte) & 0x0FU];
    }
    return digits;
}

/// Writes each kind of block.
struct BlockWriter {
    std::string& rtf;
    double width;  // of the text, points

    void operator()(const blocks::Heading& heading) {
        const auto level = static_cast<std::size_t>(std::clamp(heading.level, 1, 3));
        rtf += std::string(kHeadings[level - 1]) + RtfText(heading.text) + "\\par\n";
    }

    void operator()(const blocks::Paragraph& paragraph) {
        rtf += std::string(kNormal) + "\\sb80\\sa80 " + RtfText(paragraph.text) + "\\par\n";
    }

    void operator()(const blocks::ValueList& list) {
        const double end = list.alignment == Alignment::Right ? kNumberShare : kTextShare;
        const std::vector<RowColumn> columns = {
            {width * kLabelShare}, {width * end, list.alignment}, {width}};
        for (const blocks::ValueList::Row& row : list.rows)
            rtf += Row({row.label, row.value, row.unit}, columns, "", "");
        rtf += std::string(kNormal) + "\n";
    }

    void operator()(const blocks::Table& table) {
        const std::vector<RowColumn> columns = Share(table, width);
        std::vector<std::string> headings;
        for (const blocks::Table::Column& column : table.columns) headings.push_back(column.heading);
        rtf += Row(headings, columns, "\\trhdr", "\\b\\keepn");
        for (const std::vector<std::string>& row : table.rows) rtf += Row(row, columns, "", "");
        rtf += std::string(kNormal) + "\n";
    }

    void operator()(const blocks::Picture& picture) {
        rtf += std::string(kNormal) + "{\\pict\\pngblip\\picwgoal" + Twips(picture.widthPoints) +
               "\\pichgoal" + Twips(picture.heightPoints) + " " + Hexadecimal(picture.png) + "}\\par\n";
    }

    /// The format knows no shapes.
    void operator()(const blocks::Drawing& drawing) { (*this)(blocks::Paragraph{drawing.words}); }
};

}  // namespace

std::string WriteRtf(const Document& document, const PageSetup& setup) {
    const double width = setup.TextWidth();
    std::string rtf = Preamble(document, setup);
    rtf += Edge("header", document.head, "", width) + Edge("footer", document.foot, kPageNumber, width);
    BlockWriter writer{rtf, width};
    for (const Block& block : document.blocks) std::visit(writer, block);
    return rtf + "}\n";
}

}  // namespace kelvor
