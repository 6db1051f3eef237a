#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "reports/staging/staging_database.h"
#include "reports/staging/staging_file.h"
#include "reports/staging/staging_routines.h"
#include "support/project_fixture.h"

namespace kelvor::test {

/// A fresh project, whose staging tables are filled routine by routine.
class StagingTest : public ProjectTest {
  protected:
    /// Runs routines as one run, and gives the tables as they stand then.
    StagedTables Stage(const std::function<void(Stager&)>& routines) {
        StagingDatabase database(StagingPath());
        const CalcContext context = State().MakeCalcContext();
        Stager stager(database, context);
        routines(stager);
        StagedTables tables = database.ReadAll(*State().dbCatalogue, *State().units);
        database.Commit();
        return tables;
    }

    const Path& StagingPath() {
        return stagingFile_.Provide(program_.host.native, program_.home / "DataBase/Kelvor.mdb");
    }

    /// What a row, counted from 1, holds in a column; fails the test where there is none.
    static StagedValue Value(const StagedTables& tables, const std::string& name, const std::string& column,
                             std::size_t row = 1) {
        const StagedTable* table = tables.Find(name);
        const auto place = table == nullptr ? std::nullopt : table->Find(column);
        if (!place || row > table->rows.size()) {
            ADD_FAILURE() << "no " << name << "." << column << " in row " << row;
            return {};
        }
        return table->rows[row - 1][*place];
    }

    static double Number(const StagedTables& tables, const std::string& name, const std::string& column,
                         std::size_t row = 1) {
        const StagedValue value = Value(tables, name, column, row);
        if (const auto* number = std::get_if<double>(&value)) return *number;
        ADD_FAILURE() << name << "." << column << " holds no number";
        return 0.0;
    }

    static std::string Text(const StagedTables& tables, const std::string& name, const std::string& column,
                            std::size_t row = 1) {
        const StagedValue value = Value(tables, name, column, row);
        if (const auto* text = std::get_if<std::string>(&value)) return *text;
        ADD_FAILURE() << name << "." << column << " holds no text";
        return {};
    }

    void SetCell(const std::string& name, int dim1, int dim2, double number) {
        program_.store().SetVarDim(name, dim1, dim2, number);
    }

    void SetText(const std::string& name, const std::string& text, int dim1 = 1, int dim2 = 1) {
        program_.store().SetCell(name, dim1, dim2, {std::nullopt, text});
    }

    void Set(const std::string& name, double number) { program_.Set(name, number); }

  private:
    StagingFile stagingFile_{folder_ / "staging.tmp"};
};

}  // namespace kelvor::test
