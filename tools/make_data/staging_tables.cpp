#include "make_data/staging_tables.h"

#include <optional>
#include <string>

#include "make_data/table_files.h"

namespace kelvor {

namespace {

constexpr const char* kText = "text";

/// The statement that makes a table, and the values of a fresh row.
struct Making {
    std::string columns;
    std::string values;
};

Making MakingOf(TextTable& columns, const std::optional<std::string>& filling) {
    Making making;
    for (TextRow& row : columns.rows) {
        if (columns.Cell(row, "Filling") != filling) continue;
        const bool isText = columns.Cell(row, "Type") == kText;
        const std::string comma = making.columns.empty() ? "" : ", ";
        making.columns +=
            comma + "\"" + columns.Cell(row, "Column").value_or("") + "\"" + (isText ? " TEXT" : " REAL");
        making.values += comma + (isText ? "''" : "0");
    }
    return making;
}

void SetDefault(std::optional<std::string>& cell, const std::string& otherwise) {
    if (!cell) cell = otherwise;
}

}  // namespace

TextTable ReadStagingTables(const Path& data) {
    return ReadTable(data / "reports" / "StagingTable.tsv", {"Name", "Rows", "ColumnsOf"});
}

TextTable ReadStagingColumns(const Path& data) {
    TextTable columns =
        ReadTables(data / "reports" / "staging", {"Filling", "Column", "Type", "Rule", "Source"});
    for (TextRow& row : columns.rows) {
        const std::optional<std::string>& type = columns.Cell(row, "Type");
        if (type && type != kText) row.Refuse("a column is a text or a number");
        SetDefault(columns.Cell(row, "Type"), "number");
        SetDefault(columns.Cell(row, "Rule"), "Shown");
        SetDefault(columns.Cell(row, "Source"), columns.Cell(row, "Column").value_or(""));
    }
    return columns;
}

void MakeStagingTables(SQLite::Database& database, TextTable tables, TextTable columns) {
    for (TextRow& row : tables.rows) {
        const Making making = MakingOf(columns, tables.Cell(row, "ColumnsOf"));
        if (making.columns.empty()) row.Refuse("the table has no columns");
        const std::string name = "\"" + tables.Cell(row, "Name").value_or("") + "\"";
        database.exec("CREATE TABLE " + name + " (" + making.columns + ")");
        const int rows = WholeCell(row, tables.Cell(row, "Rows"), 1);
        for (int i = 0; i < rows; ++i)
            database.exec("INSERT INTO " + name + " VALUES (" + making.values + ")");
    }
}

}  // namespace kelvor
