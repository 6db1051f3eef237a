#include "make_data/table_files.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <iterator>
#include <limits>
#include <system_error>
#include <utility>

#include "platform/number_text.h"

namespace kelvor {

namespace {

constexpr std::size_t kLargestTable = 16UL * 1024UL * 1024UL;

std::string ReadText(const Path& file) {
    try {
        return NativeFileSystem().Read(file, kLargestTable);
    } catch (const FileError& failure) {
        throw FileError(file.string() + ": " + failure.what());
    }
}

/// Where each column of a table goes among those that it may have.
std::vector<std::size_t> TargetsOf(const TextTable& table, const ColumnNames& columns) {
    std::vector<std::size_t> targets;
    for (const std::string& column : table.columns) {
        const auto found = std::find(columns.begin(), columns.end(), column);
        if (found == columns.end()) throw TextTableError(table.name + ": there is no column " + column);
        targets.push_back(static_cast<std::size_t>(found - columns.begin()));
    }
    return targets;
}

/// The text tables below a folder, in the order of their names.
std::vector<Path> TablesBelow(const Path& folder) {
    std::vector<Path> files;
    std::error_code missing;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder, missing)) {
        if (entry.path().extension() == ".tsv") files.push_back(entry.path());
    }
    if (missing) throw FileError(folder.string() + ": " + missing.message());
    std::sort(files.begin(), files.end());
    return files;
}

}  // namespace

TextTable ReadTable(const Path& file, const ColumnNames& columns) {
    TextTable table = ParseTextTable(file.filename().string(), ReadText(file));
    const std::vector<std::size_t> targets = TargetsOf(table, columns);
    for (TextRow& row : table.rows) {
        std::vector<std::optional<std::string>> cells(columns.size());
        for (std::size_t i = 0; i < targets.size(); ++i) cells[targets[i]] = std::move(row.cells[i]);
        row.cells = std::move(cells);
    }
    table.columns = columns;
    return table;
}

TextTable ReadTables(const Path& folder, const ColumnNames& columns) {
    TextTable all{folder.filename().string(), columns, {}};
    for (const Path& file : TablesBelow(folder)) {
        TextTable table = ReadTable(file, columns);
        std::move(table.rows.begin(), table.rows.end(), std::back_inserter(all.rows));
    }
    return all;
}

void AlignTables(const Path& folder) {
    NativeFileSystem files;
    for (const Path& file : TablesBelow(folder)) {
        const std::string content = ReadText(file);
        const std::string aligned = AlignTextTable(file.filename().string(), content);
        if (aligned != content) files.Write(file, aligned);
    }
}

double Number(const TextRow& row, const std::string& cell) {
    if (!IsNumeric(cell)) row.Refuse("\"" + cell + "\" is no number");
    return ParseNumber(cell);
}

int Whole(const TextRow& row, const std::string& cell) {
    const double number = Number(row, cell);
    if (std::trunc(number) != number) row.Refuse("\"" + cell + "\" is no whole number");
    if (std::fabs(number) > std::numeric_limits<std::int16_t>::max()) {
        row.Refuse("\"" + cell + "\" is too large");
    }
    return static_cast<int>(number);
}

int WholeCell(const TextRow& row, const std::optional<std::string>& cell, int otherwise) {
    return cell ? Whole(row, *cell) : otherwise;
}

}  // namespace kelvor
