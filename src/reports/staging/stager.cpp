#include "reports/staging/stager.h"

#include <algorithm>
#include <set>

#include "reports/staging/column_rules.h"

namespace kelvor {

namespace {

constexpr const char* kGiven = "Given";

}  // namespace

void Stager::Report(const std::string& reason) {
    context_.dialogs.ShowMessage({.text = "Error updating : " + reason});
}

void Stager::Fill(const std::string& filling, const std::string& table, const StagingRow& row,
                  const GivenValues& given) {
    const std::vector<ColumnValue> values = ValuesOf(filling, table, row, given);
    try {
        database_.UpdateRow(table, row.row, values);
    } catch (const DatabaseError&) {
        WriteSingly(table, row.row, values);
    }
}

void Stager::Add(const std::string& filling, const std::string& table, const StagingRow& row,
                 const GivenValues& given) {
    const std::vector<ColumnValue> values = ValuesOf(filling, table, row, given);
    Try([&] { database_.AddRow(table, values); });
}

/// The values of those columns that have one.
std::vector<ColumnValue> Stager::ValuesOf(const std::string& filling, const std::string& table,
                                          const StagingRow& row, const GivenValues& given) {
    std::vector<ColumnValue> values;
    for (const StagingColumn& column : database_.plan().Filling(filling).columns) {
        if (column.rule != kGiven) {
            Try([&] { values.push_back({column.name, ValueOf(column, table, row, values)}); });
        } else if (const auto value = given.find(column.name); value != given.end()) {
            values.push_back({column.name, value->second});
        }
    }
    return values;
}

StagedValue Stager::ValueOf(const StagingColumn& column, const std::string& table, const StagingRow& row,
                            const std::vector<ColumnValue>& before) {
    const std::function<StagedValue(const std::string&)> staged = [&](const std::string& name) {
        const auto found = std::find_if(before.begin(), before.end(),
                                        [&](const ColumnValue& value) { return value.column == name; });
        return found != before.end() ? found->value : database_.Read(table, row.row, name);
    };
    return FindColumnRule(column.rule, column.isText)({context_, column.source, row.dim1, row.dim2, staged});
}

/// Writes column by column what could not be written at once: what fails alike is told once.
void Stager::WriteSingly(const std::string& table, int row, const std::vector<ColumnValue>& values) {
    std::set<std::string> told;
    for (const ColumnValue& value : values) {
        try {
            database_.UpdateRow(table, row, {value});
        } catch (const DatabaseError& failure) {
            if (told.insert(failure.what()).second) Report(failure.what());
        }
    }
}

}  // namespace kelvor
