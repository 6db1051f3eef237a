#include "platform/sqlite.h"

#include <sqlite3.h>

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <system_error>

#include "platform/text.h"

namespace kelvor {

namespace {

/// The longest text or row that a database of ours can hold.
constexpr int kLongestValue = 4 * 1024 * 1024;
constexpr int kBusyMilliseconds = 2000;

void Distrust(SQLite::Database& database) {
    sqlite3* handle = database.getHandle();
    sqlite3_db_config(handle, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
    sqlite3_db_config(handle, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
    sqlite3_db_config(handle, SQLITE_DBCONFIG_ENABLE_TRIGGER, 0, nullptr);
    sqlite3_db_config(handle, SQLITE_DBCONFIG_ENABLE_VIEW, 0, nullptr);
    sqlite3_limit(handle, SQLITE_LIMIT_LENGTH, kLongestValue);
    database.exec("PRAGMA cell_size_check = ON; PRAGMA mmap_size = 0");
}

/// A file whose last page is cut would read as if zeros stood there.
void CheckLength(SQLite::Database& database, const Path& path) {
    std::error_code error;
    const std::uintmax_t length = std::filesystem::file_size(path, error);
    const auto pageSize = static_cast<std::uintmax_t>(database.execAndGet("PRAGMA page_size").getInt64());
    if (!error && length % pageSize != 0) throw DatabaseError("file ends in the middle of a page", false);
}

void CheckTable(SQLite::Database& database, const TableShape& shape) {
    const std::string name(shape.name);
    // The plain table_info keeps quiet about computed columns.
    SQLite::Statement query(database, "SELECT name FROM pragma_table_xinfo(?)");
    query.bind(1, name);
    std::size_t count = 0;
    while (query.executeStep()) {
        const std::string column = query.getColumn(0);
        if (count >= shape.columns.size() || !EqualNoCase(column, shape.columns[count])) {
            throw DatabaseError("table " + name + " has other columns", false);
        }
        ++count;
    }
    if (count == 0) throw DatabaseError("table " + name + " is missing", false);
    if (count != shape.columns.size()) throw DatabaseError("table " + name + " lacks columns", false);
}

}  // namespace

DatabaseError ToDatabaseError(const SQLite::Exception& failure) {
    return {failure.what(), failure.getErrorCode() == SQLITE_NOTADB};
}

SQLite::Database OpenDatabase(const Path& path, DatabaseAccess access) {
    try {
        const int flags = access == DatabaseAccess::ReadOnly ? SQLite::OPEN_READONLY : SQLite::OPEN_READWRITE;
        SQLite::Database database(path.string(), flags, kBusyMilliseconds);
        Distrust(database);
        // The first reading is what tells a database from any other file. An empty file reads as a
        // database of no pages.
        if (database.execAndGet("PRAGMA page_count").getInt() == 0) {
            throw DatabaseError("file is empty", true);
        }
        database.execAndGet("SELECT count(*) FROM sqlite_schema");
        CheckLength(database, path);
        return database;
    } catch (const SQLite::Exception& failure) {
        throw ToDatabaseError(failure);
    }
}

void CheckShape(SQLite::Database& database, const std::vector<TableShape>& tables, bool only) {
    try {
        SQLite::Statement schema(database, "SELECT type, name FROM sqlite_schema");
        while (schema.executeStep()) {
            const std::string type = schema.getColumn(0);
            const std::string name = schema.getColumn(1);
            const bool known = std::any_of(tables.begin(), tables.end(), [&](const TableShape& table) {
                return EqualNoCase(table.name, name);
            });
            if (type == "trigger" || type == "view" || (only && !(known && type == "table"))) {
                throw DatabaseError(type + " " + name + " does not belong there", false);
            }
        }
        for (const TableShape& table : tables) CheckTable(database, table);
    } catch (const SQLite::Exception& failure) {
        throw ToDatabaseError(failure);
    }
}

}  // namespace kelvor
