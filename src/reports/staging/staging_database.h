#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "catalogue/catalogue.h"
#include "reports/staged_tables.h"
#include "reports/staging/staging_plan.h"
#include "units/units.h"

namespace kelvor {

/// A value for a column of a staging table.
struct ColumnValue {
    std::string column;
    StagedValue value;
};

/// The staging tables of one copy of the catalogue database, open for a run, which is one transaction. Rows
/// count from 1 in the order in which they stand. Every operation throws DatabaseError.
class StagingDatabase {
  public:
    explicit StagingDatabase(const Path& path);

    [[nodiscard]] const StagingPlan& plan() const { return plan_; }

    /// Writes columns of a row that is there; the others stay. Fails for a row or column that is not there.
    void UpdateRow(const std::string& table, int row, const std::vector<ColumnValue>& values);

    /// Adds a row; columns without a value are Null.
    void AddRow(const std::string& table, const std::vector<ColumnValue>& values);

    void DeleteRows(const std::string& table);

    /// What stands in a column of a row.
    [[nodiscard]] StagedValue Read(const std::string& table, int row, const std::string& column);

    /// Every staging table as it stands. A column that shows a variable has its picture and its unit.
    [[nodiscard]] StagedTables ReadAll(const Catalogue& catalogue, const Units& units);

    /// Ends the run: what was written stays.
    void Commit();

  private:
    StagedTable ReadTable(const std::string& name, const StagingFilling& filling, const Catalogue& catalogue,
                          const Units& units);

    SQLite::Database database_;
    StagingPlan plan_;
    SQLite::Transaction transaction_;
};

}  // namespace kelvor
