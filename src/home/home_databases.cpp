#include "home/home_databases.h"

#include <functional>
#include <set>
#include <string>

#include "catalogue/schema.h"
#include "platform/sqlite.h"

namespace kelvor {

namespace {

void Run(const std::function<void()>& action) {
    try {
        action();
    } catch (const SQLite::Exception& failure) {
        throw ToDatabaseError(failure);
    }
}

/// A database with a table as it should be.
SQLite::Database OpenWith(const Path& file, DatabaseAccess access, const TableDefinition& table) {
    SQLite::Database database = OpenDatabase(file, access);
    CheckShape(database, {table.Shape()}, false);
    return database;
}

std::string Quoted(std::string_view name) { return "\"" + std::string(name) + "\""; }

std::string ColumnList(const TableDefinition& table) {
    std::string list;
    for (const ColumnDefinition& column : table.columns) {
        if (!list.empty()) list += ", ";
        list += Quoted(column.name);
    }
    return list;
}

std::string InsertStatement(const TableDefinition& table) {
    std::string places;
    for (std::size_t i = 0; i < table.columns.size(); ++i) places += i == 0 ? "?" : ", ?";
    return "INSERT INTO " + Quoted(table.name) + " (" + ColumnList(table) + ") VALUES (" + places + ")";
}

void BindColumn(SQLite::Statement& insert, int place, const SQLite::Column& column) {
    if (column.isInteger()) {
        insert.bind(place, column.getInt64());
    } else if (column.isFloat()) {
        insert.bind(place, column.getDouble());
    } else if (!column.isNull()) {
        insert.bind(place, column.getString());
    }
}

using RowTest = std::function<bool(SQLite::Statement& row)>;

/// Adds the rows of one database's table, those that pass the test, to another's.
void CopyRows(SQLite::Database& from, SQLite::Database& to, const TableDefinition& table,
              const RowTest& wanted) {
    SQLite::Statement rows(from,
                           "SELECT " + ColumnList(table) + " FROM " + Quoted(table.name) + " ORDER BY rowid");
    SQLite::Statement insert(to, InsertStatement(table));
    while (rows.executeStep()) {
        if (!wanted(rows)) continue;
        insert.reset();
        insert.clearBindings();
        for (int i = 0; i < rows.getColumnCount(); ++i) BindColumn(insert, i + 1, rows.getColumn(i));
        insert.exec();
    }
}

void ReplaceRows(SQLite::Database& from, SQLite::Database& to, const TableDefinition& table) {
    to.exec("DELETE FROM " + Quoted(table.name));
    CopyRows(from, to, table, [](SQLite::Statement&) { return true; });
}

/// The names of the lists that a user was ever delivered.
std::set<std::string> DeliveredLists(SQLite::Database& lists, const TableDefinition& delivered) {
    std::set<std::string> names;
    SQLite::Statement rows(lists, "SELECT DISTINCT Name FROM " + Quoted(delivered.name));
    while (rows.executeStep()) names.insert(rows.getColumn(0).getString());
    return names;
}

}  // namespace

void SettleDatabase(const Path& file) { OpenDatabase(file, DatabaseAccess::ReadWrite); }

void CarryRecentFiles(const Path& from, const Path& to) {
    const TableDefinition& recent = TableNamed(CatalogueTables(), "RecentFiles");
    Run([&] {
        SQLite::Database former = OpenWith(from, DatabaseAccess::ReadOnly, recent);
        SQLite::Database catalogue = OpenWith(to, DatabaseAccess::ReadWrite, recent);
        SQLite::Transaction transaction(catalogue);
        ReplaceRows(former, catalogue, recent);
        transaction.commit();
    });
}

void RenewLists(const Path& shipped, const Path& lists) {
    const TableDefinition& entries = TableNamed(ListTables(), "Value");
    const TableDefinition& delivered = TableNamed(ListTables(), "ValueDefault");
    Run([&] {
        SQLite::Database source = OpenWith(shipped, DatabaseAccess::ReadOnly, entries);
        SQLite::Database own = OpenWith(lists, DatabaseAccess::ReadWrite, entries);
        CheckShape(own, {delivered.Shape()}, false);
        SQLite::Transaction transaction(own);
        const std::set<std::string> known = DeliveredLists(own, delivered);
        CopyRows(source, own, entries,
                 [&](SQLite::Statement& row) { return !known.contains(row.getColumn(0).getString()); });
        ReplaceRows(source, own, delivered);
        transaction.commit();
    });
}

}  // namespace kelvor
