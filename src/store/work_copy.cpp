#include "store/work_copy.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>

#include "platform/sqlite.h"
#include "platform/translation.h"

namespace kelvor {

// The name is kept without regard to case, as the catalogue writes and the code asks with any case.
const char* const kProjectTable =
    "CREATE TABLE Project (Name TEXT NOT NULL COLLATE NOCASE, Dim1 INTEGER NOT NULL, Dim2 INTEGER NOT NULL, "
    "RValue REAL, SValue TEXT, PRIMARY KEY (Name, Dim1, Dim2)) WITHOUT ROWID";

namespace {

/// Many times the cells of a project: a file with more is none, and would only take time and memory.
constexpr std::int64_t kMostRows = 200'000;

constexpr std::chrono::seconds kTimeBetweenFlushes{30};

const char* const kUpdate =
    "UPDATE Project SET RValue = ?1, SValue = ?2 WHERE Name = ?3 AND Dim1 = ?4 AND Dim2 = ?5";

/// A table of the same name but another make would answer our statements in other ways.
void CheckProject(SQLite::Database& database, bool checkPages) {
    CheckShape(database, {{"Project", {"Name", "Dim1", "Dim2", "RValue", "SValue"}, kProjectTable}}, true);
    const std::string made =
        database.execAndGet("SELECT sql FROM sqlite_schema WHERE type = 'table'").getString();
    if (made != kProjectTable)
        throw DatabaseError(Translated("table Project is not made as a project's"), false);
    if (!checkPages) return;
    CheckRowCounts(database, {"Project"}, kMostRows);
    const std::string verdict = database.execAndGet("PRAGMA quick_check(1)").getString();
    if (verdict != "ok") throw DatabaseError(verdict, false);
}

std::string NewerVersion(int version, int newest) {
    return Filled(
        Translated("it was saved by a newer version of Kelvor (its files have version %1, this program "
                   "knows those up to %2)"),
        {std::to_string(version), std::to_string(newest)});
}

int VersionOf(SQLite::Database& database, int newest) {
    const int version = std::max(1, database.execAndGet("PRAGMA user_version").getInt());
    if (version > newest) throw DatabaseError(NewerVersion(version, newest), false);
    return version;
}

SQLite::Database OpenProject(const Path& path, bool checkPages, int newest) {
    SQLite::Database database = OpenDatabase(path, DatabaseAccess::ReadWrite);
    try {
        if (database.execAndGet("PRAGMA journal_mode").getString() == "wal") {
            throw DatabaseError(Translated("the newest values of a file in WAL mode may stand in another"),
                                false);
        }
        // OFF spares each event some waits for the disk. If the process is killed nothing is lost by it: what
        // was written is the system's, which brings it to the disk. Against a power cut stands FlushIfDue;
        // of what came after the last flush the disk may then have a part; the shell keeps a whole copy.
        database.exec(
            "PRAGMA locking_mode = EXCLUSIVE; PRAGMA journal_mode = DELETE; PRAGMA synchronous = OFF");
        // What a newer version has made otherwise is no fault of the file.
        if (database.execAndGet("PRAGMA application_id").getInt() == kProjectApplicationId) {
            VersionOf(database, newest);
        }
        CheckProject(database, checkPages);
        // A header that allows reading alone: nothing that is typed could be stored.
        if (sqlite3_db_readonly(database.getHandle(), "main") != 0)
            throw DatabaseError(::sqlite3_errstr(SQLITE_READONLY), false);
    } catch (const SQLite::Exception& failure) {
        throw ToDatabaseError(failure);
    }
    return database;
}

int Subscript(const RowView& row, std::size_t column) {
    const std::int64_t value = row.Whole(column).value_or(0);
    if (value < 1 || value > std::numeric_limits<std::int16_t>::max()) {
        throw DatabaseError(Translated("a cell has a subscript out of range"), false);
    }
    return static_cast<int>(value);
}

std::optional<double> FiniteNumber(const RowView& row, std::size_t column) {
    const std::optional<double> value = row.Number(column);
    return value && std::isfinite(*value) ? value : std::nullopt;
}

/// The last column first: the way to it passes the other one, which is then at hand.
const char* const kFilled = "SValue IS NOT NULL OR RValue IS NOT NULL";

/// Visits the rows that meet a condition, all if it is empty, in key order.
void VisitProject(SQLite::Database& database, const std::string& condition,
                  const std::function<void(const WorkCopy::Row&)>& visit) {
    WorkCopy::Row row;
    VisitRows(
        database, "Project", "Name, Dim1, Dim2, RValue, SValue", "Name, Dim1, Dim2",
        [&](const RowView& columns) {
            row.name = columns.Letters(0);
            row.dim1 = Subscript(columns, 1);
            row.dim2 = Subscript(columns, 2);
            row.value.number = FiniteNumber(columns, 3);
            row.value.text.reset();
            if (columns.IsText(4)) row.value.text = columns.Letters(4);
            visit(row);
        },
        condition);
}

std::size_t CountProject(SQLite::Database& database) {
    return static_cast<std::size_t>(database.execAndGet("SELECT count(*) FROM Project").getInt64());
}

void Run(const std::function<void()>& action) {
    try {
        action();
    } catch (const SQLite::Exception& failure) {
        throw ToDatabaseError(failure);
    }
}

}  // namespace

WorkCopy::WorkCopy(const Path& path, bool checkPages, int newest)
    : database_(std::make_unique<SQLite::Database>(OpenProject(path, checkPages, newest))) {
    Run([&] {
        LiftStatementLimit(*database_);
        version_ = VersionOf(*database_, newest);
        update_ = std::make_unique<SQLite::Statement>(*database_, kUpdate);
    });
}

WorkCopy::~WorkCopy() = default;

ProjectCells ReadProjectCells(const std::string& content) {
    SQLite::Database database = OpenContent(content);
    ProjectCells found;
    Run([&] { found.rows = CountProject(database); });
    VisitProject(database, kFilled, [&](const WorkCopy::Row& row) {
        found.cells.push_back({{std::string(row.name), row.dim1, row.dim2}, row.value});
    });
    return found;
}

void WorkCopy::AddMissingRows(const std::string& name, int dim1, int dim2) {
    Run([&] {
        SQLite::Statement insert(*database_, "INSERT OR IGNORE INTO Project VALUES (?, ?, ?, NULL, NULL)");
        insert.bind(1, name);
        for (int i = 1; i <= dim1; ++i) {
            for (int j = 1; j <= dim2; ++j) {
                insert.reset();
                insert.bind(2, i);
                insert.bind(3, j);
                insert.exec();
            }
        }
    });
}

void WorkCopy::SetVersion(int version) {
    Run([&] { database_->exec("PRAGMA user_version = " + std::to_string(version)); });
    version_ = version;
}

void WorkCopy::ReadRows(const std::function<void(const Row&)>& visit) { VisitProject(*database_, "", visit); }

void WorkCopy::ReadFilledRows(const std::function<void(const Row&)>& visit) {
    VisitProject(*database_, kFilled, visit);
}

std::size_t WorkCopy::CountRows() {
    std::size_t count = 0;
    Run([&] { count = CountProject(*database_); });
    return count;
}

void WorkCopy::Update(const std::string& name, int dim1, int dim2, const CellValue& value) {
    Run([&] {
        update_->tryReset();  // what failed before is no failure of this change
        // What is bound here is used here: the next change binds its own before it runs.
        if (value.number) {
            update_->bind(1, *value.number);
        } else {
            update_->bind(1);
        }
        if (value.text) {
            update_->bindNoCopy(2, *value.text);
        } else {
            update_->bind(2);
        }
        update_->bindNoCopy(3, name);
        update_->bind(4, dim1);
        update_->bind(5, dim2);
        const int rows = update_->exec();
        update_->reset();
        if (rows != 1) throw DatabaseError(Filled(Translated("the row of %1 is missing"), {name}), false);
    });
}

void WorkCopy::FlushIfDue() noexcept {
    if (flushed_) return;
    const SteadyTime now = std::chrono::steady_clock::now();
    if (now - flushTime_ < kTimeBetweenFlushes) return;
    flushTime_ = now;
    flushed_ = Flush();
}

int WorkCopy::writes() const { return sqlite3_total_changes(database_->getHandle()); }

std::string WorkCopy::Content() const {
    // By the database itself: to open the file once more and close it would give up its lock.
    sqlite3_int64 size = 0;
    const std::unique_ptr<unsigned char, decltype(&sqlite3_free)> bytes(
        sqlite3_serialize(database_->getHandle(), "main", &size, 0), &sqlite3_free);
    if (bytes == nullptr) return {};
    return {reinterpret_cast<const char*>(bytes.get()), static_cast<std::size_t>(size)};
}

bool WorkCopy::Flush() noexcept {
    // By the database's own file: another one's closing would give up its lock.
    sqlite3_file* file = nullptr;
    sqlite3_file_control(database_->getHandle(), "main", SQLITE_FCNTL_FILE_POINTER,
                         static_cast<void*>(&file));
    if (file == nullptr || file->pMethods == nullptr) return false;
    if (file->pMethods->xSync(file, SQLITE_SYNC_NORMAL) != SQLITE_OK) return false;
    try {
        // That the last journal is gone is a matter of the folder. One that came back after a power cut would
        // be played into the newer file.
        NativeFileSystem().Flush(Path(sqlite3_db_filename(database_->getHandle(), "main")).parent_path());
    } catch (const FileError&) {
        return false;
    }
    return true;
}

void WorkCopy::Begin() {
    Run([&] { database_->exec("BEGIN IMMEDIATE"); });
}

void WorkCopy::Commit() {
    Run([&] { database_->exec("COMMIT"); });
    flushed_ = false;
}

bool WorkCopy::Rollback() noexcept {
    try {
        update_->tryReset();
        database_->exec("ROLLBACK");
        return true;
    } catch (const SQLite::Exception&) {
        return false;
    }
}

}  // namespace kelvor
