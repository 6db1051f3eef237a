#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "platform/file_system.h"
#include "store/cell.h"

namespace SQLite {
class Database;
class Statement;
}  // namespace SQLite

namespace kelvor {

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
    WorkCopy(const WorkCopy&) = delete;
    WorkCopy& operator=(const WorkCopy&) = delete;
    ~WorkCopy();

    /// A row, while it is visited.
    struct Row {
        std::string_view name;
        int dim1 = 1;
        int dim2 = 1;
        CellValue value;
    };

    /// Calls `visit` for each row in key order. A number that is none, NaN or infinite counts as Null.
    void ReadRows(const std::function<void(const Row&)>& visit);

    /// The same for the rows that hold a value: a tenth of them, at a third of the time.
    void ReadFilledRows(const std::function<void(const Row&)>& visit);

    [[nodiscard]] std::size_t CountRows();

    void Update(std::string_view name, int dim1, int dim2, const CellValue& value);

    void Begin();
    void Commit();

    /// False if no transaction was open.
    bool Rollback() noexcept;

  private:
    void ReadRowsThat(const std::string& condition, const std::function<void(const Row&)>& visit);

    std::unique_ptr<SQLite::Database> database_;
    std::unique_ptr<SQLite::Statement> update_;
};

}  // namespace kelvor
