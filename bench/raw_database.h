#pragma once

#include <sqlite3.h>

#include <memory>
#include <string>

namespace kelvor::bench {

struct CloseDatabase {
    void operator()(sqlite3* database) const { sqlite3_close(database); }
};
struct FinalizeStatement {
    void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};

/// SQLite by its own C interface, as the references use it.
using RawDatabase = std::unique_ptr<sqlite3, CloseDatabase>;
using RawStatement = std::unique_ptr<sqlite3_stmt, FinalizeStatement>;

/// Opens a database with the settings under which the program opens each of its own, and reads its
/// schema. Throws std::runtime_error, as all below do.
RawDatabase OpenRaw(const std::string& path);

/// Opens a project with the settings of the work copy.
RawDatabase OpenRawWorkCopy(const std::string& path);

void Execute(sqlite3* database, const char* statements);
RawStatement Prepare(sqlite3* database, const char* statement);

}  // namespace kelvor::bench
