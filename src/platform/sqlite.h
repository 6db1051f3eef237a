#pragma once

#include <SQLiteCpp/SQLiteCpp.h>

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "platform/file_system.h"

namespace kelvor {

/// A database that cannot be used; what() is the reason, for a message.
class DatabaseError : public std::runtime_error {
  public:
    DatabaseError(const std::string& reason, bool notADatabase)
        : std::runtime_error(reason), notADatabase_(notADatabase) {}

    /// True if the file is empty or no database at all, rather than a database with a fault.
    [[nodiscard]] bool notADatabase() const { return notADatabase_; }

  private:
    bool notADatabase_;
};

/// What every database begins with: a file with another beginning is none.
inline constexpr std::string_view kDatabaseMagic("SQLite format 3\0", 16);

enum class DatabaseAccess { ReadOnly, ReadWrite };

/// What a database must hold to be one of ours: a table with exactly these columns, in this order.
struct TableShape {
    std::string_view name;
    std::vector<std::string_view> columns;
};

/// Opens an existing database that may come from anywhere: no extension, trigger or view of it ever
/// runs, its schema is not trusted, and a corrupt one gives an error at the reading instead of nonsense.
/// Throws DatabaseError.
SQLite::Database OpenDatabase(const Path& path, DatabaseAccess access);

/// Checks that the tables are there with their columns. With `only`, nothing else may stand in the
/// database; in any case it may hold no trigger and no view. Throws DatabaseError with the reason.
void CheckShape(SQLite::Database& database, const std::vector<TableShape>& tables, bool only);

/// The reason of an SQLite failure as a DatabaseError.
DatabaseError ToDatabaseError(const SQLite::Exception& failure);

}  // namespace kelvor
