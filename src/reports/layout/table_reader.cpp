#include "reports/layout/table_reader.h"

#include <string>
#include <string_view>
#include <vector>

#include "platform/translation.h"

namespace kelvor {

namespace {

constexpr const char* kTableAttribute = "data-table";
constexpr const char* kRowsAttribute = "data-rows";

const StagedTable& TableNamed(const LayoutSource& source, pugi::xml_node element, const char* attribute,
                              const LayoutScope& scope) {
    const std::string name = element.attribute(attribute).value();
    const StagedTable* table = scope.tables.Find(name);
    if (table == nullptr) throw source.Error(element, Filled(Translated("there is no table \"%1\""), {name}));
    return *table;
}

std::vector<blocks::Table::Column> ReadColumns(const LayoutSource& source, pugi::xml_node row,
                                               const LayoutScope& scope) {
    std::vector<blocks::Table::Column> columns;
    for (const pugi::xml_node cell : row.children()) {
        if (!IsNamed(cell, "th")) throw source.Error(cell, Translated("the headings of a table are \"th\""));
        columns.push_back(
            {source.FilledText(cell, scope), HasClass(cell, "number") ? Alignment::Right : Alignment::Left});
    }
    return columns;
}

std::vector<std::string> ReadCells(const LayoutSource& source, pugi::xml_node row, std::size_t columns,
                                   const LayoutScope& scope) {
    std::vector<std::string> cells;
    for (const pugi::xml_node cell : row.children()) {
        if (!IsNamed(cell, "td")) throw source.Error(cell, Translated("the cells of a table are \"td\""));
        cells.push_back(source.FilledText(cell, scope));
    }
    if (cells.size() != columns) {
        throw source.Error(row, Filled(Translated("the row has %1 cells, the table %2 columns"),
                                       {std::to_string(cells.size()), std::to_string(columns)}));
    }
    return cells;
}

/// Appends what a `tr` stands for: a row, or one for each row of a staging table.
void AppendRows(const LayoutSource& source, pugi::xml_node row, const LayoutScope& outer,
                blocks::Table& table) {
    if (!IsNamed(row, "tr")) throw source.Error(row, Translated("the rows of a table are \"tr\""));
    LayoutScope scope = InnerScope(source, row, outer);
    if (!row.attribute(kRowsAttribute)) {
        table.rows.push_back(ReadCells(source, row, table.columns.size(), scope));
        return;
    }
    scope.table = &TableNamed(source, row, kRowsAttribute, scope);
    // Filled once even where there is no row, so that what is wrong with the layout is always told.
    scope.row = scope.table->rows.size();
    static_cast<void>(ReadCells(source, row, table.columns.size(), scope));
    for (scope.row = 0; scope.row < scope.table->rows.size(); ++scope.row) {
        table.rows.push_back(ReadCells(source, row, table.columns.size(), scope));
    }
}

}  // namespace

LayoutScope InnerScope(const LayoutSource& source, pugi::xml_node element, const LayoutScope& outer) {
    if (!element.attribute(kTableAttribute)) return outer;
    LayoutScope scope = outer;
    scope.table = &TableNamed(source, element, kTableAttribute, outer);
    scope.row = 0;
    return scope;
}

blocks::Table ReadTable(const LayoutSource& source, pugi::xml_node element, const LayoutScope& scope) {
    blocks::Table table;
    const pugi::xml_node head = element.child("thead").child("tr");
    if (!head)
        throw source.Error(element, Translated("a table has its headings in a \"tr\" of its \"thead\""));
    table.columns = ReadColumns(source, head, InnerScope(source, head, scope));
    for (const pugi::xml_node part : element.children()) {
        if (IsNamed(part, "thead")) continue;
        if (!IsNamed(part, "tbody"))
            throw source.Error(part, Translated("a table has a \"thead\" and a \"tbody\""));
        for (const pugi::xml_node row : part.children()) {
            AppendRows(source, row, InnerScope(source, part, scope), table);
        }
    }
    return table;
}

}  // namespace kelvor
