#pragma once

#include <SQLiteCpp/SQLiteCpp.h>

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "platform/file_system.h"

namespace kelvor {

/// The two values of a cell. A number is in English units; a text is what was typed, or the value of
/// a text variable. Both empty: the cell is not filled.
struct CellValue {
    std::optional<double> number;
    std::optional<std::string> text;

    [[nodiscard]] bool IsFilled() const { return number.has_value() || text.has_value(); }
    friend bool operator==(const CellValue&, const CellValue&) = default;
};

/// Where a cell stands: its variable's name and its two subscripts, from 1.
struct CellKey {
    std::string name;
    int dim1 = 1;
    int dim2 = 1;
};

/// The statement that makes the one table of a project file. Its primary key is the name, without regard to
/// case, then the subscripts.
extern const char* const kProjectTable;

/// The database of the open project: table Project and nothing else. It is locked for this process,
/// keeps a rollback journal, and is not flushed: it is a working copy, and saving copies it whole.
/// Every operation throws DatabaseError.
class WorkCopy {
  public:
    /// Opens the database and checks that it is a project. `checkPages` also reads every page for
    /// damage, as is due for a file from outside.
    WorkCopy(const Path& path, bool checkPages);

    /// A row, while it is visited.
    struct Row {
        std::string_view name;
        int dim1 = 1;
        int dim2 = 1;
        CellValue value;
    };

    /// Calls `visit` for each row in key order. A number that is none, NaN or infinite counts as Null.
    void ReadRows(const std::function<void(const Row&)>& visit);

    void Update(std::string_view name, int dim1, int dim2, const CellValue& value);

    void Begin();
    void Commit();
    void Rollback() noexcept;

  private:
    SQLite::Database database_;
    SQLite::Statement update_;
};

}  // namespace kelvor
