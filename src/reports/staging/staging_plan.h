#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/sqlite.h"

namespace kelvor {

/// How one column of a staging table is filled.
struct StagingColumn {
    std::string name;
    bool isText = false;
    std::string rule;    // the name of the function that makes its value
    std::string source;  // the variable that it shows, or what else the function works on
};

/// The columns of a row of a staging table, in the order in which they are written. A table may have several
/// fillings, which differ in their columns.
struct StagingFilling {
    std::string name;
    std::vector<StagingColumn> columns;
};

struct StagingTableEntry {
    std::string name;
    std::string columnsOf;  // the filling that has all its columns, in their order
};

/// What the catalogue says of the staging tables. Its tables are read once a run.
class StagingPlan {
  public:
    /// Throws DatabaseError.
    explicit StagingPlan(SQLite::Database& database);

    /// Throws std::logic_error if there is no such filling.
    [[nodiscard]] const StagingFilling& Filling(std::string_view name) const;

    [[nodiscard]] const std::vector<StagingTableEntry>& tables() const { return tables_; }

  private:
    std::vector<StagingFilling> fillings_;
    std::vector<StagingTableEntry> tables_;
};

}  // namespace kelvor
