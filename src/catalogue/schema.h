#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/sqlite.h"

namespace kelvor {

/// A column and its SQL type with constraints.
struct ColumnDefinition {
    std::string_view name;
    std::string_view type;
};

/// A table of one of the two databases that ship with the program, which the build makes from the
/// text table of the same name and which the program checks when it opens the database.
struct TableDefinition {
    std::string_view name;
    std::vector<ColumnDefinition> columns;

    [[nodiscard]] TableShape Shape() const;
    [[nodiscard]] std::string CreateStatement() const;
};

/// The tables of the catalogue database.
const std::vector<TableDefinition>& CatalogueTables();

/// The tables of the list database.
const std::vector<TableDefinition>& ListTables();

/// Throws DatabaseError if a table has many times the rows of the databases that ship.
void CheckRowCounts(SQLite::Database& database, const std::vector<TableDefinition>& tables);

/// The definition of a table of either database.
const TableDefinition& TableNamed(const std::vector<TableDefinition>& tables, std::string_view name);

}  // namespace kelvor
