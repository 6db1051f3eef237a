#include "catalogue/schema.h"

#include <algorithm>
#include <stdexcept>

namespace kelvor {

namespace {

constexpr std::string_view kName = "TEXT NOT NULL COLLATE NOCASE";
constexpr std::string_view kKeyName = "TEXT NOT NULL COLLATE NOCASE PRIMARY KEY";
constexpr std::string_view kText = "TEXT";
constexpr std::string_view kNumber = "REAL";
constexpr std::string_view kWhole = "INTEGER";

std::vector<ColumnDefinition> ListColumns() {
    return {{"Name", "TEXT COLLATE NOCASE"},
            {"Sort", kNumber},
            {"Value", kText},
            {"UnitSystem", kText},
            {"ShowValue", kText},
            {"ShowUnits", kText},
            {"Description", "TEXT COLLATE NOCASE"}};
}

}  // namespace

TableShape TableDefinition::Shape() const {
    TableShape shape{name, {}, CreateStatement()};
    for (const ColumnDefinition& column : columns) shape.columns.push_back(column.name);
    return shape;
}

std::string TableDefinition::CreateStatement() const {
    std::string statement = "CREATE TABLE \"" + std::string(name) + "\" (";
    for (const ColumnDefinition& column : columns) {
        if (&column != &columns.front()) statement += ", ";
        statement += "\"" + std::string(column.name) + "\" " + std::string(column.type);
    }
    return statement + ")";
}

const std::vector<TableDefinition>& CatalogueTables() {
    static const std::vector<TableDefinition> kTables = {
        {"Field",
         {{"Screen", kName},
          {"Name", kName},
          {"Id", kText},
          {"Seq", kWhole},
          {"Class", kText},
          {"Type", kText},
          {"Equation", kText},
          {"SolveFor", kNumber},
          {"Dim2", kWhole},
          {"x", kNumber},
          {"y", kNumber},
          {"Heading", kText}}},
        {"Variable",
         {{"Name", kKeyName},
          {"Format", kText},
          {"Units", kText},
          {"Desc", kText},
          {"Dim1", kWhole},
          {"Dim2", kWhole},
          {"High", kNumber},
          {"Low", kNumber},
          {"HighMetric", kNumber},
          {"LowMetric", kNumber},
          {"HelpHead", kText},
          {"HelpText", kText}}},
        {"Screen",
         {{"Name", kKeyName},
          {"Dim2", kWhole},
          {"Sf1Y", kNumber},
          {"Layout", kText},
          {"Title", kText},
          {"Title1", kText},
          {"Title2", kText},
          {"LeftX", kNumber},
          {"LeftY", kNumber},
          {"ScreenLeft", kText},
          {"RightX", kNumber},
          {"RightY", kNumber},
          {"ScreenRight", kText}}},
        {"Label", {{"Screen", kName}, {"Label", kText}, {"x", kNumber}, {"y", kNumber}}},
        {"Convert", {{"English", kName}, {"Metric", kName}, {"Factor", "REAL NOT NULL"}}},
        {"RecentFiles", {{"FileName", kText}, {"OpenDate", kText}, {"SortOrder", kWhole}}},
        {"StagingTable", {{"Name", kKeyName}, {"Rows", kWhole}, {"ColumnsOf", kName}}},
        {"StagingColumn",
         {{"Filling", kName}, {"Column", kName}, {"Type", kName}, {"Rule", kName}, {"Source", kName}}},
    };
    return kTables;
}

const std::vector<TableDefinition>& ListTables() {
    static const std::vector<TableDefinition> kTables = {{"Value", ListColumns()},
                                                         {"ValueDefault", ListColumns()}};
    return kTables;
}

void CheckRowCounts(SQLite::Database& database, const std::vector<TableDefinition>& tables) {
    constexpr std::int64_t kMostRows = 100'000;
    std::vector<std::string_view> names;
    for (const TableDefinition& table : tables) names.push_back(table.name);
    CheckRowCounts(database, names, kMostRows);
}

const TableDefinition& TableNamed(const std::vector<TableDefinition>& tables, std::string_view name) {
    const auto found = std::find_if(tables.begin(), tables.end(),
                                    [&](const TableDefinition& table) { return table.name == name; });
    if (found == tables.end()) throw std::invalid_argument("no table " + std::string(name));
    return *found;
}

}  // namespace kelvor
