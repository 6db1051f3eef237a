#include "reports/pages/column_widths.h"

#include <algorithm>
#include <numeric>

namespace kelvor {

namespace {

double Sum(const std::vector<double>& widths) { return std::accumulate(widths.begin(), widths.end(), 0.0); }

/// No column is wanted wider than its heading's words and its cells make it, nor than half of the text.
double Wanted(const TypeSetter& setter, const blocks::Table& table, std::size_t column,
              const TextStyle& cells, const TextStyle& headings, double most) {
    double wanted = setter.WidestWord(table.columns[column].heading, headings);
    for (const std::vector<std::string>& row : table.rows) {
        if (wanted >= most) return most;
        wanted = std::max(wanted, setter.Natural(row[column], cells));
    }
    return std::min(wanted, most);
}

/// Takes from the widest columns until all fit: none is made narrower than those that were not touched.
void Narrow(std::vector<double>& widths, double room) {
    std::vector<double> sorted = widths;
    std::sort(sorted.begin(), sorted.end());
    double left = room;
    double widest = 0.0;
    for (std::size_t i = 0; i < sorted.size(); ++i) {
        widest = left / static_cast<double>(sorted.size() - i);
        if (sorted[i] > widest) break;
        left -= sorted[i];
    }
    for (double& width : widths) width = std::min(width, widest);
}

}  // namespace

std::vector<double> ColumnWidths(const TypeSetter& setter, const blocks::Table& table, const TextStyle& cells,
                                 const TextStyle& headings, double width, double padding) {
    const auto count = static_cast<double>(table.columns.size());
    const double room = width - 2.0 * padding * count;
    std::vector<double> widths;
    for (std::size_t i = 0; i < table.columns.size(); ++i) {
        widths.push_back(Wanted(setter, table, i, cells, headings, room / 2.0));
    }
    const double all = Sum(widths);
    if (all > room) {
        Narrow(widths, room);
    } else {
        for (double& one : widths) one += (room - all) / count;
    }
    for (double& one : widths) one += 2.0 * padding;
    return widths;
}

}  // namespace kelvor
