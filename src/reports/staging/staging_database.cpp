#include "reports/staging/staging_database.h"

#include <utility>

#include "platform/translation.h"

namespace kelvor {

namespace {

std::string Quoted(const std::string& name) { return "\"" + name + "\""; }

SQLite::Database Open(const Path& path) {
    SQLite::Database database = OpenDatabase(path, DatabaseAccess::ReadWrite);
    // A working copy: what a crash leaves of it is thrown away.
    database.exec("PRAGMA journal_mode = MEMORY; PRAGMA synchronous = OFF");
    return database;
}

void Bind(SQLite::Statement& statement, int place, const StagedValue& value) {
    if (const auto* number = std::get_if<double>(&value)) statement.bind(place, *number);
    if (const auto* text = std::get_if<std::string>(&value)) statement.bind(place, *text);
}

StagedValue ValueOf(const SQLite::Column& column) {
    if (column.isNull()) return {};
    if (column.isText()) return column.getString();
    return column.getDouble();
}

/// The names of columns, each with something behind it, between commas.
std::string List(const std::vector<ColumnValue>& values, const std::string& behind) {
    std::string list;
    for (const ColumnValue& value : values)
        list += (list.empty() ? "" : ", ") + Quoted(value.column) + behind;
    return list;
}

/// Runs a statement with the values bound to its first places.
int Run(SQLite::Statement& statement, const std::vector<ColumnValue>& values) {
    int place = 0;
    for (const ColumnValue& value : values) Bind(statement, ++place, value.value);
    return statement.exec();
}

template <typename Action>
auto OrDatabaseError(Action action) {
    try {
        return action();
    } catch (const SQLite::Exception& failure) {
        throw ToDatabaseError(failure);
    }
}

/// The row of a number: they are found in the order of their ids, whatever these are.
std::string RowCondition(const std::string& table, int row) {
    return " WHERE rowid = (SELECT rowid FROM " + Quoted(table) + " ORDER BY rowid LIMIT 1 OFFSET " +
           std::to_string(row - 1) + ")";
}

}  // namespace

StagingDatabase::StagingDatabase(const Path& path)
    : database_(OrDatabaseError([&] { return Open(path); })), plan_(database_), transaction_(database_) {}

void StagingDatabase::UpdateRow(const std::string& table, int row, const std::vector<ColumnValue>& values) {
    if (values.empty()) return;
    OrDatabaseError([&] {
        SQLite::Statement update(
            database_, "UPDATE " + Quoted(table) + " SET " + List(values, " = ?") + RowCondition(table, row));
        if (Run(update, values) == 0) {
            throw DatabaseError(Filled(Translated("table %1 has no row %2"), {table, std::to_string(row)}),
                                false);
        }
    });
}

void StagingDatabase::AddRow(const std::string& table, const std::vector<ColumnValue>& values) {
    OrDatabaseError([&] {
        std::string places;
        for (std::size_t i = 0; i < values.size(); ++i) places += i == 0 ? "?" : ", ?";
        SQLite::Statement insert(database_, "INSERT INTO " + Quoted(table) + " (" + List(values, "") +
                                                ") VALUES (" + places + ")");
        Run(insert, values);
    });
}

void StagingDatabase::DeleteRows(const std::string& table) {
    OrDatabaseError([&] { database_.exec("DELETE FROM " + Quoted(table)); });
}

StagedValue StagingDatabase::Read(const std::string& table, int row, const std::string& column) {
    return OrDatabaseError([&]() -> StagedValue {
        SQLite::Statement query(
            database_, "SELECT " + Quoted(column) + " FROM " + Quoted(table) + RowCondition(table, row));
        if (!query.executeStep()) return {};
        return ValueOf(query.getColumn(0));
    });
}

StagedTables StagingDatabase::ReadAll(const Catalogue& catalogue, const Units& units) {
    return OrDatabaseError([&] {
        StagedTables all;
        for (const StagingTableEntry& entry : plan_.tables()) {
            all.tables.push_back(ReadTable(entry.name, plan_.Filling(entry.columnsOf), catalogue, units));
        }
        return all;
    });
}

StagedTable StagingDatabase::ReadTable(const std::string& name, const StagingFilling& filling,
                                       const Catalogue& catalogue, const Units& units) {
    StagedTable table{name, {}, {}};
    std::string columns;
    for (const StagingColumn& column : filling.columns) {
        const Variable* variable = column.isText ? nullptr : catalogue.FindVariable(column.source);
        table.columns.push_back({column.name, variable != nullptr ? variable->format : "",
                                 variable != nullptr ? units.UnitLabel(column.source) : ""});
        columns += (columns.empty() ? "" : ", ") + Quoted(column.name);
    }
    SQLite::Statement rows(database_, "SELECT " + columns + " FROM " + Quoted(name) + " ORDER BY rowid");
    while (rows.executeStep()) {
        std::vector<StagedValue>& row = table.rows.emplace_back();
        for (int i = 0; i < rows.getColumnCount(); ++i) row.push_back(ValueOf(rows.getColumn(i)));
    }
    return table;
}

void StagingDatabase::Commit() {
    OrDatabaseError([&] { transaction_.commit(); });
}

}  // namespace kelvor
