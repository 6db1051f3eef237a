#pragma once

#include <SQLiteCpp/SQLiteCpp.h>
#include <sqlite3.h>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/database_error.h"
#include "platform/file_system.h"

namespace kelvor {

enum class DatabaseAccess { ReadOnly, ReadWrite };

/// What a database must hold to be one of ours: a table with exactly these columns, in this order.
struct TableShape {
    std::string_view name;
    std::vector<std::string_view> columns;
    std::string statement = {};  // that made it, if it is known: such a table needs no look at its columns
};

/// Opens an existing database that may come from anywhere: no extension, trigger or view of it ever
/// runs, its schema is not trusted, and a corrupt one gives an error at the reading instead of nonsense. A
/// statement that takes far longer than any of ours ends with an error, as pages can be laid so that
/// they read as rows without end. To be used by one thread. Throws DatabaseError.
SQLite::Database OpenDatabase(const Path& path, DatabaseAccess access);

/// Opens what a database file would hold, with the same distrust, for reading alone. The content must outlive
/// it. Throws DatabaseError.
SQLite::Database OpenContent(const std::string& content);

/// Lets statements of a database take any time. For one whose pages and rows were checked, before a statement
/// is made that is used again and again: SQLite counts the steps of all its uses together.
void LiftStatementLimit(SQLite::Database& database);

/// Throws DatabaseError if one of the tables has more rows than `most`; it counts no further.
void CheckRowCounts(SQLite::Database& database, const std::vector<std::string_view>& tables,
                    std::int64_t most);

/// Checks that the tables are there with their columns. With `only`, nothing else may stand in the
/// database; in any case it may hold no trigger and no view. Throws DatabaseError with the reason.
void CheckShape(SQLite::Database& database, const std::vector<TableShape>& tables, bool only);

/// The values of one row, while it is visited. Columns count from 0.
class RowView {
  public:
    explicit RowView(sqlite3_value** values) : values_(values) {}

    [[nodiscard]] bool IsText(std::size_t column) const {
        return sqlite3_value_type(values_[column]) == SQLITE_TEXT;
    }

    /// The value if it is a whole number, or any number; else nothing.
    [[nodiscard]] std::optional<std::int64_t> Whole(std::size_t column) const {
        if (sqlite3_value_type(values_[column]) != SQLITE_INTEGER) return std::nullopt;
        return sqlite3_value_int64(values_[column]);
    }
    [[nodiscard]] std::optional<double> Number(std::size_t column) const {
        const int type = sqlite3_value_type(values_[column]);
        if (type != SQLITE_FLOAT && type != SQLITE_INTEGER) return std::nullopt;
        return sqlite3_value_double(values_[column]);
    }

    /// The value in letters, whatever it is; Null is empty.
    [[nodiscard]] std::string_view Letters(std::size_t column) const {
        // The bytes are counted behind the conversion to UTF-8, not before.
        const void* letters = sqlite3_value_text(values_[column]);
        const int count = sqlite3_value_bytes(values_[column]);
        return {static_cast<const char*>(letters), static_cast<std::size_t>(count)};
    }

  private:
    sqlite3_value** values_;
};

/// Hands the given columns of every row of a table to `visit`, in the order of `order`, which must be that
/// of the table itself; of those alone that meet `condition`, if one is given. For tables of many rows: it
/// takes half the time of a query that gives each row back. Throws DatabaseError, and what `visit` throws.
void VisitRows(SQLite::Database& database, const std::string& table, const std::string& columns,
               const std::string& order, const std::function<void(const RowView&)>& visit,
               const std::string& condition = {});

/// The reason of an SQLite failure as a DatabaseError.
DatabaseError ToDatabaseError(const SQLite::Exception& failure);

}  // namespace kelvor
