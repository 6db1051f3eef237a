#include "make_data/database_maker.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <functional>
#include <limits>
#include <set>
#include <string>
#include <system_error>
#include <vector>

#include "catalogue/schema.h"
#include "make_data/text_table.h"
#include "platform/number_text.h"
#include "platform/sqlite.h"
#include "store/work_copy.h"

namespace kelvor {

namespace {

constexpr std::size_t kLargestTable = 16UL * 1024UL * 1024UL;

TextTable ReadTable(const Path& folder, std::string_view name) {
    const Path file = folder / (std::string(name) + ".tsv");
    try {
        return ParseTextTable(file.filename().string(), NativeFileSystem().Read(file, kLargestTable));
    } catch (const FileError& failure) {
        throw FileError(file.string() + ": " + failure.what());
    }
}

std::size_t ColumnOf(const TextTable& table, std::string_view column) {
    const auto found = std::find(table.columns.begin(), table.columns.end(), column);
    if (found == table.columns.end()) throw TextTableError(table.name + ": no column " + std::string(column));
    return static_cast<std::size_t>(found - table.columns.begin());
}

[[noreturn]] void RefuseCell(const TextTable& table, const std::string& cell, const char* fault) {
    throw TextTableError(table.name + ": \"" + cell + "\" " + fault);
}

/// What a cell holds that must hold a number.
double Number(const TextTable& table, const std::string& cell) {
    if (!IsNumeric(cell)) RefuseCell(table, cell, "is no number");
    return ParseNumber(cell);
}

/// What a cell holds that must hold a whole number, of a size that the program reads.
int Whole(const TextTable& table, const std::string& cell) {
    const double number = Number(table, cell);
    if (std::trunc(number) != number) RefuseCell(table, cell, "is no whole number");
    if (std::fabs(number) > std::numeric_limits<std::int16_t>::max()) {
        RefuseCell(table, cell, "is too large");
    }
    return static_cast<int>(number);
}

/// A cell that must hold a whole number, or be Null for `otherwise`.
int WholeCell(const TextTable& table, const std::optional<std::string>& cell, int otherwise) {
    return cell ? Whole(table, *cell) : otherwise;
}

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

/// Binds a cell as what its column holds.
void BindCell(SQLite::Statement& insert, int place, const ColumnDefinition& column, const TextTable& table,
              const std::optional<std::string>& cell) {
    if (!cell) return;
    if (column.type.starts_with("TEXT")) {
        insert.bind(place, *cell);
    } else if (column.type.starts_with("INTEGER")) {
        insert.bind(place, Whole(table, *cell));
    } else {
        insert.bind(place, Number(table, *cell));
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
    for (const ColumnDefinition& column : definition.columns) sources.push_back(ColumnOf(table, column.name));
    for (const auto& row : table.rows) {
        insert.reset();
        insert.clearBindings();
        for (std::size_t i = 0; i < sources.size(); ++i) {
            BindCell(insert, static_cast<int>(i + 1), definition.columns[i], table, row[sources[i]]);
        }
        insert.exec();
    }
}

/// A help text without a variable would never be shown: its name is misspelt.
void CheckHelpFiles(const Path& helpFolder, const std::set<std::string>& variables) {
    std::error_code missing;
    for (const auto& entry : std::filesystem::directory_iterator(helpFolder, missing)) {
        const Path& file = entry.path();
        if (file.extension() != ".txt" || variables.contains(file.stem().string())) continue;
        throw TextTableError(file.filename().string() + ": there is no variable " + file.stem().string());
    }
}

/// The variables with their help texts, each of which is a file of its own.
TextTable ReadVariables(const Path& folder) {
    TextTable table = ReadTable(folder, "Variable");
    const std::size_t name = ColumnOf(table, "Name");
    table.columns.emplace_back("HelpText");
    const NativeFileSystem files;
    std::set<std::string> variables;
    for (auto& row : table.rows) {
        const std::string variable = row[name].value_or("");
        const Path help = folder / "help" / (variable + ".txt");
        std::optional<std::string> text;
        if (files.Kind(help) == FileKind::Regular) text = files.Read(help, kLargestTable);
        while (text && text->ends_with('\n')) text->pop_back();
        row.push_back(text);
        variables.insert(variable);
    }
    CheckHelpFiles(folder / "help", variables);
    return table;
}

void FillProject(SQLite::Database& database, const TextTable& variables) {
    database.exec(kProjectTable);
    SQLite::Statement insert(database, "INSERT INTO Project VALUES (?, ?, ?, NULL, NULL)");
    const std::size_t name = ColumnOf(variables, "Name");
    const std::size_t dim1 = ColumnOf(variables, "Dim1");
    const std::size_t dim2 = ColumnOf(variables, "Dim2");
    for (const auto& row : variables.rows) {
        const int rows = WholeCell(variables, row[dim1], 1);
        const int blocks = WholeCell(variables, row[dim2], 1);
        for (int i = 1; i <= rows; ++i) {
            for (int j = 1; j <= blocks; ++j) {
                insert.reset();
                insert.bind(1, row[name].value_or(""));
                insert.bind(2, i);
                insert.bind(3, j);
                insert.exec();
            }
        }
    }
}

void FillDefaults(SQLite::Database& database, const TextTable& defaults) {
    SQLite::Statement update(
        database, "UPDATE Project SET RValue = ?, SValue = ? WHERE Name = ? AND Dim1 = ? AND Dim2 = ?");
    for (const auto& row : defaults.rows) {
        const auto cell = [&](const char* column) { return row[ColumnOf(defaults, column)]; };
        update.reset();
        update.clearBindings();
        if (const auto number = cell("RValue")) update.bind(1, Number(defaults, *number));
        if (const auto text = cell("SValue")) update.bind(2, *text);
        update.bind(3, cell("Name").value_or(""));
        update.bind(4, WholeCell(defaults, cell("Dim1"), 1));
        update.bind(5, WholeCell(defaults, cell("Dim2"), 1));
        if (update.exec() != 1)
            throw TextTableError(defaults.name + ": no cell " + cell("Name").value_or(""));
    }
}

}  // namespace

void MakeCatalogue(const Path& data, const Path& file) {
    MakeDatabase(file, [&](SQLite::Database& database) {
        for (const TableDefinition& definition : CatalogueTables()) {
            const Path folder = data / "catalogue";
            const bool isVariable = definition.name == "Variable";
            FillTable(database, definition,
                      isVariable ? ReadVariables(folder) : ReadTable(folder, definition.name));
        }
    });
}

void MakeLists(const Path& data, const Path& file) {
    MakeDatabase(file, [&](SQLite::Database& database) {
        const TextTable values = ReadTable(data / "lists", "Value");
        for (const TableDefinition& definition : ListTables()) FillTable(database, definition, values);
    });
}

void MakeTemplate(const Path& data, const Path& file) {
    MakeDatabase(file, [&](SQLite::Database& database) {
        FillProject(database, ReadTable(data / "catalogue", "Variable"));
        FillDefaults(database, ReadTable(data / "template", "defaults"));
    });
}

void MakeDatabases(const Path& data, const Path& home) {
    MakeCatalogue(data, home / "DataBase" / "Kelvor.mdb");
    MakeLists(data, home / "DataBase" / "custom.tpl");
    MakeTemplate(data, home / "kvrwork.tpl");
}

}  // namespace kelvor
