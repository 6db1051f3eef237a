#include "reports/pages/table_strips.h"

#include <iterator>
#include <utility>

#include "reports/pages/column_widths.h"
#include "reports/pages/row_strips.h"
#include "reports/pages/strip_builder.h"

namespace kelvor {

namespace {

constexpr double kPadding = 4.0;  // at both sides of a cell
constexpr double kAbove = 2.0;
constexpr double kBelow = 2.0;
constexpr double kLightGrey = 0.8;

/// The texts of a row in the columns of its table.
std::vector<Strip> SetRow(const TypeSetter& setter, const std::vector<std::string>& texts,
                          const blocks::Table& table, const std::vector<double>& widths,
                          const TextStyle& style) {
    std::vector<RowCell> cells;
    double left = 0.0;
    for (std::size_t i = 0; i < widths.size(); ++i) {
        const double width = widths[i] - 2.0 * kPadding;
        cells.push_back(
            {setter.Set(texts[i], style, width), left + kPadding, width, table.columns[i].alignment});
        left += widths[i];
    }
    std::vector<Strip> strips = RowStrips(cells);
    Pad(strips, kAbove, kBelow);
    return strips;
}

void Underline(std::vector<Strip>& strips, double width, double grey) {
    if (strips.empty()) return;
    strips.back().rules.push_back({0.0, width, strips.back().height, grey});
}

/// Headings of several lines end at the same height.
std::vector<Strip> Headings(const TypeSetter& setter, const blocks::Table& table,
                            const std::vector<double>& widths, double width) {
    std::vector<std::string> texts;
    for (const blocks::Table::Column& column : table.columns) texts.push_back(column.heading);
    std::vector<Strip> strips = SetRow(setter, texts, table, widths, styles::kTableHeading);
    for (Strip& strip : strips) strip.keepWithNext = true;
    Underline(strips, width, 0.0);
    return strips;
}

double HeightOf(const std::vector<Strip>& strips) {
    double height = 0.0;
    for (const Strip& strip : strips) height += strip.height;
    return height;
}

}  // namespace

std::vector<Strip> TableStrips(const TypeSetter& setter, const blocks::Table& table, double width,
                               double pageHeight) {
    const std::vector<double> widths =
        ColumnWidths(setter, table, styles::kText, styles::kTableHeading, width, kPadding);
    std::vector<Strip> strips = Headings(setter, table, widths, width);
    const bool repeats = HeightOf(strips) < pageHeight / 3.0;
    const auto headings = repeats ? std::make_shared<const std::vector<Strip>>(strips) : nullptr;
    for (std::size_t i = 0; i < table.rows.size(); ++i) {
        std::vector<Strip> row = SetRow(setter, table.rows[i], table, widths, styles::kText);
        Underline(row, width, kLightGrey);
        for (Strip& strip : row) strip.headings = headings;
        const bool isFirst = i == 0 && table.rows.size() > 1;
        const bool isLastButOne = i + 2 == table.rows.size();
        if (isFirst || isLastButOne) row.back().keepWithNext = true;
        std::move(row.begin(), row.end(), std::back_inserter(strips));
    }
    if (table.rows.empty()) strips.back().keepWithNext = false;
    return strips;
}

}  // namespace kelvor
