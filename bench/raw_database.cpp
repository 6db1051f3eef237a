#include "raw_database.h"

#include <stdexcept>

namespace kelvor::bench {

namespace {

void Require(int result, sqlite3* database) {
    if (result != SQLITE_OK) throw std::runtime_error(sqlite3_errmsg(database));
}

}  // namespace

void Execute(sqlite3* database, const char* statements) {
    Require(sqlite3_exec(database, statements, nullptr, nullptr, nullptr), database);
}

RawStatement Prepare(sqlite3* database, const char* statement) {
    sqlite3_stmt* prepared = nullptr;
    Require(sqlite3_prepare_v2(database, statement, -1, &prepared, nullptr), database);
    return RawStatement(prepared);
}

RawDatabase OpenRaw(const std::string& path) {
    sqlite3* handle = nullptr;
    const int result = sqlite3_open_v2(path.c_str(), &handle, SQLITE_OPEN_READWRITE, nullptr);
    RawDatabase database(handle);
    Require(result, handle);
    sqlite3_busy_timeout(handle, 2000);
    sqlite3_db_config(handle, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
    sqlite3_db_config(handle, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
    sqlite3_db_config(handle, SQLITE_DBCONFIG_ENABLE_TRIGGER, 0, nullptr);
    sqlite3_db_config(handle, SQLITE_DBCONFIG_ENABLE_VIEW, 0, nullptr);
    Execute(handle, "PRAGMA cell_size_check = ON; PRAGMA mmap_size = 0");
    Execute(handle, "SELECT count(*) FROM sqlite_schema");
    return database;
}

RawDatabase OpenRawWorkCopy(const std::string& path) {
    RawDatabase database = OpenRaw(path);
    Execute(database.get(),
            "PRAGMA locking_mode = EXCLUSIVE; PRAGMA journal_mode = DELETE; PRAGMA synchronous = OFF");
    return database;
}

}  // namespace kelvor::bench
