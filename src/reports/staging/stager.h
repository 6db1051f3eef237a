#pragma once

#include <map>
#include <string>

#include "calc/calc_context.h"
#include "reports/staging/staging_database.h"

namespace kelvor {

/// Which row of a staging table is filled from which cells.
struct StagingRow {
    int row = 1;   // of the table
    int dim1 = 1;  // the subscripts of the cells
    int dim2 = 1;
};

/// Fills staging tables from the open project, in the active unit system. What fails is shown in a message,
/// "Error updating : " and the reason, one for each column; its column keeps what it held, and the rest is
/// written.
class Stager {
  public:
    Stager(StagingDatabase& database, const CalcContext& context) : database_(database), context_(context) {}

    /// Values for the columns of a filling whose rule is `Given`.
    using GivenValues = std::map<std::string, double>;

    /// Writes the columns of a filling to a row that is there.
    void Fill(const std::string& filling, const std::string& table, const StagingRow& row = {},
              const GivenValues& given = {});

    /// Adds a row with the columns of a filling.
    void Add(const std::string& filling, const std::string& table, const StagingRow& row,
             const GivenValues& given);

    /// Does one step; a failure is shown.
    template <typename Action>
    bool Try(Action action) {
        try {
            action();
            return true;
        } catch (const ProgramStop&) {
            throw;
        } catch (const std::runtime_error& failure) {
            Report(failure.what());
            return false;
        }
    }

    void Report(const std::string& reason);

    [[nodiscard]] StagingDatabase& database() { return database_; }
    [[nodiscard]] const CalcContext& context() const { return context_; }

  private:
    std::vector<ColumnValue> ValuesOf(const std::string& filling, const std::string& table,
                                      const StagingRow& row, const GivenValues& given);
    StagedValue ValueOf(const StagingColumn& column, const std::string& table, const StagingRow& row,
                        const std::vector<ColumnValue>& before);
    void WriteSingly(const std::string& table, int row, const std::vector<ColumnValue>& values);

    StagingDatabase& database_;
    const CalcContext& context_;
};

}  // namespace kelvor
