#pragma once

#include <chrono>
#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

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

/// The version of project files that this program writes: another one for each release whose projects have
/// other cells. It stands in a file as SQLite's user_version; files from before the first release have 0,
/// which is read as 1.
inline constexpr int kProjectVersion = 1;

/// SQLite's application_id of a project file, "KVRP" in its header: by it a desktop tells a project from
/// other databases.
inline constexpr int kProjectApplicationId = 0x4B565250;

/// What a project file holds without its empty cells.
struct ProjectCells {
    struct Cell {
        CellKey key;
        CellValue value;
    };
    std::size_t rows = 0;  // of all cells, the empty ones too
    std::vector<Cell> cells;
};

/// Reads it of the content of a file, from memory. Throws DatabaseError.
ProjectCells ReadProjectCells(const std::string& content);

/// The database of the open project: table Project and nothing else. It is locked for this process,
/// keeps a rollback journal, and is not flushed: it is a working copy, and saving copies it whole.
/// Every operation throws DatabaseError.
class WorkCopy {
  public:
    /// Opens the database and checks that it is a project. `checkPages` also reads every page for
    /// damage, as is due for a file from outside. One of a newer version than `newest` is refused.
    WorkCopy(const Path& path, bool checkPages, int newest = kProjectVersion);
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

    /// The version of project files that it has, from 1.
    [[nodiscard]] int version() const { return version_; }

    /// Both are for projects of an earlier version; see BringUpToDate. Rows that are there stay as they are.
    void AddMissingRows(const std::string& name, int dim1, int dim2);
    void SetVersion(int version);

    void Update(const std::string& name, int dim1, int dim2, const CellValue& value);

    /// Waits until all that was committed is on the disk, if the last time was half a minute ago or more. Due
    /// at the end of each event, and now and then without one: so a power cut costs a minute of work at most.
    /// A failure is tried again the next time.
    void FlushIfDue() noexcept;

    /// How many rows have been written since it was opened.
    [[nodiscard]] int writes() const;

    /// The file as it stands between two events; empty if there is no memory for it.
    [[nodiscard]] std::string Content() const;

    void Begin();
    void Commit();

    /// False if no transaction was open.
    bool Rollback() noexcept;

  private:
    using SteadyTime = std::chrono::steady_clock::time_point;

    [[nodiscard]] bool Flush() noexcept;
    std::unique_ptr<SQLite::Database> database_;
    int version_ = kProjectVersion;
    std::unique_ptr<SQLite::Statement> update_;
    bool flushed_ = true;  // what was committed last is on the disk
    SteadyTime flushTime_ = std::chrono::steady_clock::now();
};

}  // namespace kelvor
