#include "catalogue/list_database.h"

#include "catalogue/schema.h"

namespace kelvor {

namespace {

SQLite::Database OpenLists(const Path& path) {
    SQLite::Database database = OpenDatabase(path, DatabaseAccess::ReadWrite);
    std::vector<TableShape> shapes;
    for (const TableDefinition& table : ListTables()) shapes.push_back(table.Shape());
    CheckShape(database, shapes, false);
    return database;
}

}  // namespace

ListDatabase::ListDatabase(const Path& path) : database_(OpenLists(path)) {}

std::vector<std::string> ListDatabase::Values(std::string_view list, bool metric) {
    try {
        std::vector<std::string> values;
        SQLite::Statement rows(
            database_,
            "SELECT Value FROM \"Value\" WHERE Name = ? AND "
            "(UnitSystem IS NULL OR UnitSystem = '' OR UnitSystem = ?) ORDER BY Sort, rowid");
        rows.bind(1, std::string(list));
        rows.bind(2, metric ? "M" : "E");
        while (rows.executeStep()) {
            const auto value = rows.getColumn(0);
            values.push_back(value.isNull() ? std::string() : value.getString());
        }
        return values;
    } catch (const SQLite::Exception& failure) {
        throw ToDatabaseError(failure);
    }
}

}  // namespace kelvor
