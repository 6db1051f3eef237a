#include "make_data/catalogue_tables.h"

#include <algorithm>
#include <cstddef>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <utility>

#include "make_data/help_texts.h"
#include "make_data/staging_tables.h"
#include "make_data/table_files.h"

namespace kelvor {

namespace {

/// The rows that are no terms of an equation are numbered from here.
constexpr int kFirstPlace = 19;

const ColumnNames kVariableColumns = {"Name", "Format", "Units",     "Dim1",       "Dim2",
                                      "Low",  "High",   "LowMetric", "HighMetric", "Desc"};

TextTable ReadOne(const Path& data, const std::string& table, const ColumnNames& columns) {
    return ReadTable(data / "catalogue" / (table + ".tsv"), columns);
}

/// What a row has in the first columns of its table, as one key.
std::string KeyOf(const TextRow& row, std::size_t columns) {
    std::string key;
    for (std::size_t i = 0; i < columns; ++i) {
        key += row.cells[i].value_or("");
        key += '\t';
    }
    return key;
}

/// Adds to a table what another one says of its rows. A row goes to the row that has the same in the first
/// `keys` columns; one without such a row is refused.
void AddFrom(const TextTable& source, std::size_t keys, TextTable& target) {
    std::map<std::string, TextRow*> rows;
    for (TextRow& row : target.rows) rows.emplace(KeyOf(row, keys), &row);
    const std::size_t first = target.columns.size();
    target.AddColumns({source.columns.begin() + static_cast<std::ptrdiff_t>(keys), source.columns.end()});
    for (const TextRow& row : source.rows) {
        const auto found = rows.find(KeyOf(row, keys));
        if (found == rows.end()) row.Refuse("it belongs to no row");
        for (std::size_t i = keys; i < row.cells.size(); ++i)
            found->second->cells[first + i - keys] = row.cells[i];
    }
}

void SetDefault(std::optional<std::string>& cell, const char* otherwise) {
    if (!cell) cell = otherwise;
}

/// A help text without a variable would never be shown: its name is misspelt.
void RefuseStrayHelp(const std::map<std::string, HelpText>& texts, const std::set<std::string>& variables) {
    for (const auto& [name, help] : texts) {
        if (variables.contains(name)) continue;
        throw TextTableError(Path(name).concat(".txt").string() + ": there is no variable " + name);
    }
}

void AddHelp(const Path& folder, TextTable& variables) {
    const auto texts = ReadHelpTexts(folder);
    variables.AddColumns({"HelpHead", "HelpText"});
    std::set<std::string> names;
    for (TextRow& row : variables.rows) {
        const std::string name = variables.Cell(row, "Name").value_or("");
        names.insert(name);
        const auto help = texts.find(name);
        if (help == texts.end()) continue;
        variables.Cell(row, "HelpHead") = help->second.head;
        variables.Cell(row, "HelpText") = help->second.text;
    }
    RefuseStrayHelp(texts, names);
}

/// Gives each row that is no term its place, and Solve For to the terms.
void NumberFields(TextTable& fields) {
    std::map<std::string, int> next;
    for (TextRow& row : fields.rows) {
        const auto [screen, isNew] = next.emplace(fields.Cell(row, "Screen").value_or(""), kFirstPlace);
        std::optional<std::string>& place = fields.Cell(row, "Seq");
        const int number = WholeCell(row, place, screen->second);
        place = std::to_string(number);
        if (number < kFirstPlace) {
            fields.Cell(row, "SolveFor") = "1";
        } else {
            screen->second = number + 1;
        }
    }
}

/// The screens that have an equation, by the number of their terms.
std::set<std::string> ScreensWithTerms(TextTable fields) {
    std::set<std::string> screens;
    for (TextRow& row : fields.rows) {
        if (fields.Cell(row, "SolveFor")) screens.insert(fields.Cell(row, "Screen").value_or(""));
    }
    return screens;
}

/// The screens as they are written: `FieldsOf` is the screen whose fields this one has too.
TextTable ReadScreenRows(const Path& data) {
    return ReadOne(data, "Screen", {"Name", "FieldsOf", "Dim2", "Title", "Title1", "Title2"});
}

/// Adds the fields of the screens that have those of another one.
void AddFieldsOfOthers(TextTable screens, TextTable& fields) {
    for (TextRow& screen : screens.rows) {
        const auto& other = screens.Cell(screen, "FieldsOf");
        if (!other) continue;
        const std::size_t count = fields.rows.size();
        for (std::size_t i = 0; i < count; ++i) {
            if (fields.Cell(fields.rows[i], "Screen") != other) continue;
            TextRow copy = fields.rows[i];
            fields.Cell(copy, "Screen") = screens.Cell(screen, "Name");
            fields.rows.push_back(std::move(copy));
        }
        if (fields.rows.size() == count) screen.Refuse("there are no fields of " + *other);
    }
}

/// An indicator stands on each screen that has an equation; two titles make two halves.
TextTable ReadScreens(const Path& data) {
    TextTable screens = ReadScreenRows(data);
    AddFrom(ReadOne(data, "coarse_grid/Page",
                    {"Screen", "LeftX", "LeftY", "ScreenLeft", "RightX", "RightY", "ScreenRight"}),
            1, screens);
    screens.AddColumns({"Sf1Y", "Layout"});
    const std::set<std::string> withTerms = ScreensWithTerms(ReadFields(data));
    for (TextRow& row : screens.rows) {
        if (withTerms.contains(screens.Cell(row, "Name").value_or(""))) screens.Cell(row, "Sf1Y") = "1";
        screens.Cell(row, "Layout") = screens.Cell(row, "Title1") ? "H" : "S";
    }
    return screens;
}

ColumnNames ColumnsOf(const TableDefinition& definition) {
    ColumnNames names;
    for (const ColumnDefinition& column : definition.columns) names.emplace_back(column.name);
    return names;
}

}  // namespace

TextTable ReadVariables(const Path& data) {
    TextTable variables = ReadTables(data / "catalogue" / "variables", kVariableColumns);
    for (TextRow& row : variables.rows) {
        SetDefault(variables.Cell(row, "Units"), "No Units");
        SetDefault(variables.Cell(row, "Dim1"), "1");
        SetDefault(variables.Cell(row, "Dim2"), "1");
    }
    AddHelp(data / "catalogue" / "help", variables);
    return variables;
}

TextTable ReadFields(const Path& data) {
    TextTable fields = ReadTables(data / "catalogue" / "fields",
                                  {"Screen", "Name", "Seq", "Class", "Equation", "Dim2", "Heading"});
    AddFrom(ReadOne(data, "coarse_grid/Place", {"Screen", "Name", "x", "y"}), 2, fields);
    AddFieldsOfOthers(ReadScreenRows(data), fields);
    fields.AddColumns({"Id", "Type", "SolveFor"});
    NumberFields(fields);
    for (TextRow& row : fields.rows) {
        fields.Cell(row, "Id") = fields.Cell(row, "Name");
        if (fields.Cell(row, "Equation")) fields.Cell(row, "Type") = "O";
    }
    return fields;
}

TextTable ReadCatalogueTable(const Path& data, const TableDefinition& definition) {
    if (definition.name == "Variable") return ReadVariables(data);
    if (definition.name == "Field") return ReadFields(data);
    if (definition.name == "Screen") return ReadScreens(data);
    if (definition.name == "Label") return ReadOne(data, "coarse_grid/Label", ColumnsOf(definition));
    if (definition.name == kStagingTables) return ReadStagingTables(data);
    if (definition.name == kStagingColumns) return ReadStagingColumns(data);
    return ReadOne(data, std::string(definition.name), ColumnsOf(definition));
}

}  // namespace kelvor
