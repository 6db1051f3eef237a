#include "platform/sqlite.h"

#include <algorithm>
#include <cstddef>
#include <exception>
#include <filesystem>
#include <system_error>

#include "platform/text.h"
#include "platform/translation.h"

namespace kelvor {

namespace {

/// The longest text or row that a database of ours can hold.
constexpr int kLongestValue = 4 * 1024 * 1024;
constexpr int kBusyMilliseconds = 2000;

/// The steps of SQLite's machine after which a statement is ended: a second or two. The longest statement of
/// ours, the check of all pages and rows of a project, takes about a million.
constexpr int kMostSteps = 50'000'000;

int EndStatement(void* /*unused*/) { return 1; }

/// Sets what holds for all databases, once and before the first; false if that was too late. By default
/// SQLite counts the memory that it takes, under a lock that all threads share, and nobody asks for it. No
/// file is mapped into memory: one that another program cuts short would end this one.
bool IsConfigured() {
    static const bool configured = [] {
        constexpr sqlite3_int64 kNone = 0;
        return sqlite3_config(SQLITE_CONFIG_MEMSTATUS, 0) == SQLITE_OK &&
               sqlite3_config(SQLITE_CONFIG_MMAP_SIZE, kNone, kNone) == SQLITE_OK;
    }();
    return configured;
}

/// No locks around each call, of which a row takes a dozen: no database is used by two threads at a time.
SQLite::Database Connect(const std::string& file, int flags) {
    IsConfigured();
    return {file, flags | SQLite::OPEN_NOMUTEX, kBusyMilliseconds};
}

void Distrust(SQLite::Database& database) {
    sqlite3* handle = database.getHandle();
    sqlite3_db_config(handle, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
    sqlite3_db_config(handle, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
    sqlite3_db_config(handle, SQLITE_DBCONFIG_ENABLE_TRIGGER, 0, nullptr);
    sqlite3_db_config(handle, SQLITE_DBCONFIG_ENABLE_VIEW, 0, nullptr);
    sqlite3_limit(handle, SQLITE_LIMIT_LENGTH, kLongestValue);
    sqlite3_progress_handler(handle, kMostSteps, EndStatement, nullptr);
    database.exec("PRAGMA cell_size_check = ON");
    if (!IsConfigured()) database.exec("PRAGMA mmap_size = 0");
}

/// A pipe, or a device that never ends, is no database. What is missing or a folder SQLite tells itself.
void CheckKind(const Path& path) {
    std::error_code error;
    const auto kind = std::filesystem::status(path, error).type();
    const bool serves = kind == std::filesystem::file_type::regular ||
                        kind == std::filesystem::file_type::directory ||
                        kind == std::filesystem::file_type::not_found;
    if (!error && !serves) throw DatabaseError(Translated("Not a regular file"), true);
}

/// A file that cannot be opened for writing at the moment is opened by SQLite for reading alone, and would
/// stay so; then it is tried once more.
SQLite::Database OpenFile(const Path& path, DatabaseAccess access) {
    const bool writes = access == DatabaseAccess::ReadWrite;
    const int flags = writes ? SQLite::OPEN_READWRITE : SQLite::OPEN_READONLY;
    SQLite::Database database = Connect(path.string(), flags);
    const bool readsAlone = sqlite3_db_readonly(database.getHandle(), "main") == 1;
    if (!writes || !readsAlone || !NativeFileSystem().IsWritable(path)) return database;
    return Connect(path.string(), flags);
}

/// A file whose last page is cut would read as if zeros stood there.
void CheckLength(SQLite::Database& database, const Path& path) {
    std::error_code error;
    const std::uintmax_t length = std::filesystem::file_size(path, error);
    const auto pageSize = static_cast<std::uintmax_t>(database.execAndGet("PRAGMA page_size").getInt64());
    if (!error && length % pageSize != 0)
        throw DatabaseError(Translated("file ends in the middle of a page"), false);
}

[[noreturn]] void Refuse(const std::string& type, const std::string& name) {
    throw DatabaseError(Filled(Translated("%1 %2 does not belong there"), {type, name}), false);
}

/// `query` gives the columns of the table that is bound to it.
void CheckTable(SQLite::Statement& query, const TableShape& shape) {
    const std::string name(shape.name);
    query.reset();
    query.bind(1, name);
    std::size_t count = 0;
    while (query.executeStep()) {
        const std::string column = query.getColumn(0);
        if (count >= shape.columns.size() || !EqualNoCase(column, shape.columns[count])) {
            throw DatabaseError(Filled(Translated("table %1 has other columns"), {name}), false);
        }
        if (query.getColumn(1).getInt() != 0) {
            throw DatabaseError(Filled(Translated("table %1 has computed columns"), {name}), false);
        }
        ++count;
    }
    if (count == 0) throw DatabaseError(Filled(Translated("table %1 is missing"), {name}), false);
    if (count != shape.columns.size())
        throw DatabaseError(Filled(Translated("table %1 lacks columns"), {name}), false);
}

void CheckTables(SQLite::Database& database, const std::vector<TableShape>& tables) {
    // The plain table_info keeps quiet about computed columns.
    SQLite::Statement columns(database, "SELECT name, hidden FROM pragma_table_xinfo(?)");
    for (const TableShape& table : tables) CheckTable(columns, table);
}

/// The tables that are not made by the statement that their shape gives, if it gives one. Whatever does not
/// belong there is refused.
std::vector<TableShape> UnknownTables(SQLite::Database& database, std::vector<TableShape> tables, bool only) {
    SQLite::Statement schema(database, "SELECT type, name, sql FROM sqlite_schema");
    while (schema.executeStep()) {
        const std::string type = schema.getColumn(0);
        const std::string name = schema.getColumn(1);
        const std::string statement = schema.getColumn(2);
        const auto known = std::find_if(tables.begin(), tables.end(), [&](const TableShape& table) {
            return EqualNoCase(table.name, name);
        });
        const bool belongs = known != tables.end() && type == "table";
        if (type == "trigger" || type == "view" || (only && !belongs)) Refuse(type, name);
        if (belongs && statement == known->statement) known->columns.clear();
    }
    std::erase_if(tables, [](const TableShape& table) { return table.columns.empty(); });
    return tables;
}

const char* const kVisitFunction = "visit_row";

/// What is done with each row, and the exception that ended it: SQLite knows none, so it must not pass there.
struct Visit {
    const std::function<void(const RowView&)>& visit;
    std::exception_ptr failure;
};

/// The function that SQLite calls with each row. Its answer, 0, keeps the row out of the result.
void VisitRow(sqlite3_context* context, int /*count*/, sqlite3_value** values) {
    auto& state = *static_cast<Visit*>(sqlite3_user_data(context));
    try {
        state.visit(RowView(values));
        sqlite3_result_int(context, 0);
    } catch (...) {
        state.failure = std::current_exception();
        sqlite3_result_error_code(context, SQLITE_ABORT);
    }
}

/// Makes VisitRow known to a database, for direct use alone, as long as it lives.
class VisitFunction {
  public:
    VisitFunction(sqlite3* database, Visit& state) : database_(database) {
        if (Define(&state, VisitRow) != SQLITE_OK) throw SQLite::Exception(database_);
    }
    VisitFunction(const VisitFunction&) = delete;
    VisitFunction& operator=(const VisitFunction&) = delete;
    ~VisitFunction() { Define(nullptr, nullptr); }

  private:
    int Define(Visit* state, void (*function)(sqlite3_context*, int, sqlite3_value**)) {
        constexpr int kAnyCount = -1;
        return sqlite3_create_function(database_, kVisitFunction, kAnyCount, SQLITE_UTF8 | SQLITE_DIRECTONLY,
                                       state, function, nullptr, nullptr);
    }

    sqlite3* database_;
};

}  // namespace

void VisitRows(SQLite::Database& database, const std::string& table, const std::string& columns,
               const std::string& order, const std::function<void(const RowView&)>& visit,
               const std::string& condition) {
    Visit state{visit, nullptr};
    const std::string where = condition.empty() ? std::string{} : "(" + condition + ") AND ";
    try {
        const VisitFunction function(database.getHandle(), state);
        database.exec("SELECT 1 FROM \"" + table + "\" WHERE " + where + kVisitFunction + "(" + columns +
                      ") ORDER BY " + order);
    } catch (const SQLite::Exception& failure) {
        if (state.failure) std::rethrow_exception(state.failure);
        throw ToDatabaseError(failure);
    }
}

/// What SQLite says most often, for the catalogue of texts.
[[maybe_unused]] constexpr std::array kCommonReasons = {
    ToTranslate("attempt to write a readonly database"),
    ToTranslate("database disk image is malformed"),
    ToTranslate("database is locked"),
    ToTranslate("database or disk is full"),
    ToTranslate("disk I/O error"),
    ToTranslate("file is not a database"),
    ToTranslate("unable to open database file"),
};

DatabaseError ToDatabaseError(const SQLite::Exception& failure) {
    if (failure.getErrorCode() == SQLITE_INTERRUPT) return {Translated("it takes too long to read"), false};
    return {Translated(failure.what()), failure.getErrorCode() == SQLITE_NOTADB};
}

SQLite::Database OpenDatabase(const Path& path, DatabaseAccess access) {
    CheckKind(path);
    try {
        SQLite::Database database = OpenFile(path, access);
        Distrust(database);
        SQLite::Transaction reading(database);  // one, so that the file is not locked for each query
        // The first reading is what tells a database from any other file. An empty file reads as a
        // database of no pages.
        if (database.execAndGet("PRAGMA page_count").getInt() == 0) {
            throw DatabaseError(Translated("file is empty"), true);
        }
        database.execAndGet("SELECT count(*) FROM sqlite_schema");
        CheckLength(database, path);
        reading.commit();
        return database;
    } catch (const SQLite::Exception& failure) {
        throw ToDatabaseError(failure);
    }
}

SQLite::Database OpenContent(const std::string& content) {
    try {
        SQLite::Database database = Connect(":memory:", SQLite::OPEN_READWRITE);
        // Of a content for reading alone SQLite writes nothing into what it is given.
        auto* bytes = reinterpret_cast<unsigned char*>(const_cast<char*>(content.data()));
        const auto size = static_cast<sqlite3_int64>(content.size());
        const int result =
            sqlite3_deserialize(database.getHandle(), "main", bytes, size, size, SQLITE_DESERIALIZE_READONLY);
        if (result != SQLITE_OK) throw SQLite::Exception(database.getHandle(), result);
        Distrust(database);
        return database;
    } catch (const SQLite::Exception& failure) {
        throw ToDatabaseError(failure);
    }
}

void LiftStatementLimit(SQLite::Database& database) {
    sqlite3_progress_handler(database.getHandle(), 0, nullptr, nullptr);
}

void CheckRowCounts(SQLite::Database& database, const std::vector<std::string_view>& tables,
                    std::int64_t most) {
    // Of the tables themselves, as an index of a damaged one may have other rows. Each column tells of a
    // table whether it has a row beyond the last one that it may have.
    std::string query = "SELECT ";
    for (const std::string_view table : tables) {
        if (table != tables.front()) query += ", ";
        query += "(SELECT 1 FROM \"" + std::string(table) + "\" NOT INDEXED LIMIT 1 OFFSET ?1)";
    }
    try {
        SQLite::Statement rowsBeyond(database, query);
        rowsBeyond.bind(1, most);
        rowsBeyond.executeStep();
        for (std::size_t i = 0; i < tables.size(); ++i) {
            if (rowsBeyond.getColumn(static_cast<int>(i)).isNull()) continue;
            throw DatabaseError(Filled(Translated("table %1 has too many rows"), {tables[i]}), false);
        }
    } catch (const SQLite::Exception& failure) {
        throw ToDatabaseError(failure);
    }
}

void CheckShape(SQLite::Database& database, const std::vector<TableShape>& tables, bool only) {
    try {
        SQLite::Transaction reading(database);  // one, so that the file is not locked for each query
        const std::vector<TableShape> unknown = UnknownTables(database, tables, only);
        if (!unknown.empty()) CheckTables(database, unknown);
        reading.commit();
    } catch (const SQLite::Exception& failure) {
        throw ToDatabaseError(failure);
    }
}

}  // namespace kelvor
