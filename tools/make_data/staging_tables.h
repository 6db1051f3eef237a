#pragma once

#include <string_view>

#include "make_data/text_table.h"
#include "platform/file_system.h"
#include "platform/sqlite.h"

namespace kelvor {

/// The catalogue tables that describe the staging tables of the reports.
inline constexpr std::string_view kStagingTables = "StagingTable";
inline constexpr std::string_view kStagingColumns = "StagingColumn";

/// Each staging table with the number of its rows, and the filling whose columns it has.
TextTable ReadStagingTables(const Path& data);

/// The columns of each filling in their order: what they hold, where it comes from, and the rule that makes
/// it; without a source it is the variable of the column's name.
TextTable ReadStagingColumns(const Path& data);

/// Makes the staging tables with their rows: zeros, and empty texts. Throws TextTableError for a table
/// without columns.
void MakeStagingTables(SQLite::Database& database, TextTable tables, TextTable columns);

}  // namespace kelvor
