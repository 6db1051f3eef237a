#include "make_data/database_maker.h"

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "catalogue/schema.h"
#include "home/shipped_parts.h"
#include "make_data/catalogue_tables.h"
#include "make_data/list_tables.h"
#include "make_data/staging_tables.h"
#include "make_data/table_files.h"
#include "make_data/text_table.h"
#include "platform/sqlite.h"
#include "store/work_copy.h"

namespace kelvor {

namespace {

const ColumnNames kDefaultColumns = {"Name", "Dim1", "Dim2", "RValue", "SValue"};

/// A new database, made in one transaction. Nothing of the moment or the machine goes into it.
void MakeDatabase(const Path& file, const std::function<void(SQLite::Database&)>& fill) {
    std::filesystem::create_directories(file.parent_path());
    std::filesystem::remove(file);
    try {
        SQLite::Database database(file.string(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
        database.exec("PRAGMA page_size = 4096; PRAGMA journal_mode = OFF; PRAGMA synchronous = OFF");
        database.exec("BEGIN");
        fill(database);
        database.exec("COMMIT");
    } catch (const SQLite::Exception& failure) {
        throw DatabaseError(file.filename().string() + ": " + failure.what(), false);
    }
}

/// Binds a row's cell as what its column holds.
void BindCell(SQLite::Statement& insert, int place, const ColumnDefinition& column, const TextRow& row,
              std::size_t source) {
    const std::optional<std::string>& cell = row.cells[source];
    if (!cell) return;
    if (column.type.starts_with("TEXT")) {
        insert.bind(place, *cell);
    } else if (column.type.starts_with("INTEGER")) {
        insert.bind(place, Whole(row, *cell));
    } else {
        insert.bind(place, Number(row, *cell));
    }
}

std::string InsertStatement(const TableDefinition& definition) {
    std::string places;
    for (std::size_t i = 0; i < definition.columns.size(); ++i) places += i == 0 ? "?" : ", ?";
    return "INSERT INTO \"" + std::string(definition.name) + "\" VALUES (" + places + ")";
}

/// Makes a table and fills it from the text table that has its columns.
void FillTable(SQLite::Database& database, const TableDefinition& definition, const TextTable& table) {
    database.exec(definition.CreateStatement());
    SQLite::Statement insert(database, InsertStatement(definition));
    std::vector<std::size_t> sources;
    for (const ColumnDefinition& column : definition.columns) sources.push_back(table.ColumnOf(column.name));
    for (const TextRow& row : table.rows) {
        insert.reset();
        insert.clearBindings();
        for (std::size_t i = 0; i < sources.size(); ++i) {
            BindCell(insert, static_cast<int>(i + 1), definition.columns[i], row, sources[i]);
        }
        insert.exec();
    }
}

void FillProject(SQLite::Database& database, TextTable variables) {
    database.exec(kProjectTable);
    SQLite::Statement insert(database, "INSERT INTO Project VALUES (?, ?, ?, NULL, NULL)");
    for (TextRow& row : variables.rows) {
        const int rows = WholeCell(row, variables.Cell(row, "Dim1"), 1);
        const int blocks = WholeCell(row, variables.Cell(row, "Dim2"), 1);
        for (int i = 1; i <= rows; ++i) {
            for (int j = 1; j <= blocks; ++j) {
                insert.reset();
                insert.bind(1, variables.Cell(row, "Name").value_or(""));
                insert.bind(2, i);
                insert.bind(3, j);
                insert.exec();
            }
        }
    }
}

void FillDefaults(SQLite::Database& database, TextTable defaults) {
    SQLite::Statement update(
        database, "UPDATE Project SET RValue = ?, SValue = ? WHERE Name = ? AND Dim1 = ? AND Dim2 = ?");
    for (TextRow& row : defaults.rows) {
        const auto cell = [&](const char* column) { return defaults.Cell(row, column); };
        update.reset();
        update.clearBindings();
        if (const auto number = cell("RValue")) update.bind(1, Number(row, *number));
        if (const auto text = cell("SValue")) update.bind(2, *text);
        update.bind(3, cell("Name").value_or(""));
        update.bind(4, WholeCell(row, cell("Dim1"), 1));
        update.bind(5, WholeCell(row, cell("Dim2"), 1));
        if (update.exec() != 1) row.Refuse("no cell " + cell("Name").value_or(""));
    }
}

}  // namespace

void MakeCatalogue(const Path& data, const Path& file) {
    MakeDatabase(file, [&](SQLite::Database& database) {
        for (const TableDefinition& definition : CatalogueTables()) {
            FillTable(database, definition, ReadCatalogueTable(data, definition));
        }
        MakeStagingTables(database, ReadStagingTables(data), ReadStagingColumns(data));
    });
}

void MakeLists(const Path& data, const Path& file) {
    MakeDatabase(file, [&](SQLite::Database& database) {
        const TextTable values = ReadLists(data);
        for (const TableDefinition& definition : ListTables()) FillTable(database, definition, values);
    });
}

void MakeTemplate(const Path& data, const Path& file) {
    MakeDatabase(file, [&](SQLite::Database& database) {
        database.exec("PRAGMA user_version = " + std::to_string(kProjectVersion));
        database.exec("PRAGMA application_id = " + std::to_string(kProjectApplicationId));
        FillProject(database, ReadVariables(data));
        FillDefaults(database, ReadTable(data / "template" / "defaults.tsv", kDefaultColumns));
    });
}

void MakeDatabases(const Path& data, const Path& home) {
    MakeCatalogue(data, home / "DataBase" / "Kelvor.mdb");
    MakeLists(data, home / "DataBase" / "custom.tpl");
    MakeTemplate(data, home / "kvrwork.tpl");
}

void WriteShippedList(const Path& home) {
    NativeFileSystem files;
    files.Write(home / ShippedParts::kListName, ListShippedParts(files, home));
}

}  // namespace kelvor
