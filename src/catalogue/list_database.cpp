#include "catalogue/list_database.h"

#include "catalogue/schema.h"
#include "platform/sqlite.h"
#include "platform/text.h"

namespace kelvor {

namespace {

SQLite::Database OpenLists(const Path& path) {
    SQLite::Database database = OpenDatabase(path, DatabaseAccess::ReadWrite);
    std::vector<TableShape> shapes;
    for (const TableDefinition& table : ListTables()) shapes.push_back(table.Shape());
    CheckShape(database, shapes, false);
    CheckRowCounts(database, ListTables());
    return database;
}

SQLite::Database EmptyLists() {
    SQLite::Database database(":memory:", SQLite::OPEN_READWRITE);
    for (const TableDefinition& table : ListTables()) database.exec(table.CreateStatement());
    database.exec("PRAGMA query_only = ON");  // what would be lost at the end is refused at once
    return database;
}

const char* const kColumns = "Name, Sort, \"Value\", UnitSystem, ShowValue, ShowUnits, Description";

std::string TextOf(const SQLite::Column& column) {
    return column.isNull() ? std::string() : column.getString();
}

/// The entries of the lists that a description means, by their place in a table, in the order of the list.
std::vector<std::int64_t> RowsLike(SQLite::Database& database, const std::string& table,
                                   const std::string& description) {
    std::vector<std::int64_t> ids;
    SQLite::Statement rows(database, "SELECT rowid, Description FROM \"" + table + "\" ORDER BY Sort, rowid");
    while (rows.executeStep()) {
        if (rows.getColumn(1).isNull() || !Like(rows.getColumn(1).getString(), description)) continue;
        ids.push_back(rows.getColumn(0).getInt64());
    }
    return ids;
}

void DeleteById(SQLite::Database& database, std::int64_t id) {
    SQLite::Statement row(database, R"(DELETE FROM "Value" WHERE rowid = ?)");
    row.bind(1, id);
    row.exec();
}

}  // namespace

ListDatabase::ListDatabase() : database_(std::make_unique<SQLite::Database>(EmptyLists())) {}

ListDatabase::ListDatabase(const Path& path)
    : database_(std::make_unique<SQLite::Database>(OpenLists(path))) {}

ListDatabase::~ListDatabase() = default;

std::vector<std::string> ListDatabase::Values(std::string_view list, bool metric) {
    std::vector<std::string> values;
    VisitOffered(list, metric, [&](const std::string& value, std::optional<double> /*sort*/) {
        values.push_back(value);
        return true;
    });
    return values;
}

std::optional<double> ListDatabase::FindPlace(std::string_view list, std::string_view text, bool metric) {
    std::optional<double> place;
    VisitOffered(list, metric, [&](const std::string& value, std::optional<double> sort) {
        if (!Like(value, text)) return true;
        place = sort;
        return false;
    });
    return place;
}

/// Calls `visit` for each entry that a list offers in a unit system, in its order, until it gives false.
void ListDatabase::VisitOffered(
    std::string_view list, bool metric,
    const std::function<bool(const std::string& value, std::optional<double> sort)>& visit) {
    try {
        SQLite::Statement rows(
            *database_,
            "SELECT \"Value\", Sort FROM \"Value\" WHERE Name = ? AND "
            "(UnitSystem IS NULL OR UnitSystem = '' OR UnitSystem = ?) ORDER BY Sort, rowid");
        rows.bind(1, std::string(list));
        rows.bind(2, metric ? "M" : "E");
        bool more = true;
        while (more && rows.executeStep()) {
            const auto sort = rows.getColumn(1);
            more = visit(TextOf(rows.getColumn(0)),
                         sort.isNull() ? std::nullopt : std::optional(sort.getDouble()));
        }
    } catch (const SQLite::Exception& failure) {
        throw ToDatabaseError(failure);
    }
}

std::vector<std::string> ListDatabase::Descriptions() {
    try {
        std::vector<std::string> descriptions;
        SQLite::Statement rows(*database_,
                               "SELECT Description FROM \"Value\" WHERE Description IS NOT NULL AND "
                               "Description <> '' GROUP BY Description");
        while (rows.executeStep()) descriptions.push_back(rows.getColumn(0).getString());
        return descriptions;
    } catch (const SQLite::Exception& failure) {
        throw ToDatabaseError(failure);
    }
}

std::vector<ListRow> ListDatabase::Rows(const std::string& description) {
    try {
        std::vector<ListRow> found;
        SQLite::Statement row(*database_, R"(SELECT Name, Sort, "Value" FROM "Value" WHERE rowid = ?)");
        for (const std::int64_t id : RowsLike(*database_, "Value", description)) {
            row.reset();
            row.bind(1, id);
            if (!row.executeStep()) continue;
            const auto sort = row.getColumn(1);
            found.push_back({id, TextOf(row.getColumn(0)),
                             sort.isNull() ? std::nullopt : std::optional(sort.getDouble()),
                             TextOf(row.getColumn(2))});
        }
        return found;
    } catch (const SQLite::Exception& failure) {
        throw ToDatabaseError(failure);
    }
}

void ListDatabase::AddRow(const std::string& description) {
    const std::vector<ListRow> rows = Rows(description);
    const double last = rows.empty() ? 0.0 : rows.back().sort.value_or(0.0);
    Change([&] {
        SQLite::Statement insert(*database_,
                                 R"(INSERT INTO "Value" (Sort, Description, Name) VALUES (?, ?, ?))");
        insert.bind(1, last + 1.0);
        insert.bind(2, description);
        insert.bind(3, rows.empty() ? std::string() : rows.back().name);
        insert.exec();
    });
}

void ListDatabase::DeleteRows(const std::string& description, const ListRow& row) {
    if (!row.sort || row.value.find('\'') != std::string::npos) return;
    const std::vector<ListRow> rows = Rows(description);
    Change([&] {
        for (const ListRow& other : rows) {
            const bool sameValue = !row.value.empty() && EqualNoCase(other.value, row.value);
            if (other.sort == row.sort || sameValue) DeleteById(*database_, other.id);
        }
    });
}

void ListDatabase::Restore(const std::string& description) {
    Change([&] {
        for (const std::int64_t id : RowsLike(*database_, "Value", description)) DeleteById(*database_, id);
        SQLite::Statement insert(*database_, std::string("INSERT INTO \"Value\" (") + kColumns + ") SELECT " +
                                                 kColumns + " FROM ValueDefault WHERE rowid = ?");
        for (const std::int64_t id : RowsLike(*database_, "ValueDefault", description)) {
            insert.reset();
            insert.bind(1, id);
            insert.exec();
        }
    });
}

void ListDatabase::Write(const ListRow& row) {
    Change([&] {
        SQLite::Statement update(*database_,
                                 R"(UPDATE "Value" SET Name = ?, Sort = ?, "Value" = ? WHERE rowid = ?)");
        update.bind(1, row.name);
        if (row.sort) update.bind(2, *row.sort);
        if (!row.value.empty()) update.bind(3, row.value);
        update.bind(4, row.id);
        update.exec();
    });
}

/// One transaction: all of it, or nothing.
void ListDatabase::Change(const std::function<void()>& statements) {
    try {
        SQLite::Transaction transaction(*database_, SQLite::TransactionBehavior::IMMEDIATE);
        statements();
        transaction.commit();
    } catch (const SQLite::Exception& failure) {
        throw ToDatabaseError(failure);
    }
}

}  // namespace kelvor
