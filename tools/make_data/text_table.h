#pragma once

#include <cstddef>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace kelvor {

/// A text table that is not well formed; what() names the file, the line and the fault.
class TextTableError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// One row of a text table: what its cells hold, Null for an empty one.
struct TextRow {
    std::string place;  // where it stands, for a message: "design.tsv, line 5"
    std::vector<std::optional<std::string>> cells;

    /// Refuses the row: throws TextTableError.
    [[noreturn]] void Refuse(const std::string& fault) const;
};

/// A table kept as text: tab-separated cells, the column names in the first line, one row a line. Blanks
/// around a cell only align it with those above; an empty cell is Null. `\s`, `\t`, `\n` and `\\` stand for a
/// blank, a tab, a line feed and a backslash.
struct TextTable {
    std::string name;
    std::vector<std::string> columns;
    std::vector<TextRow> rows;

    /// The place of a column; throws TextTableError if there is none.
    [[nodiscard]] std::size_t ColumnOf(std::string_view column) const;

    /// A row's cell in a column.
    [[nodiscard]] std::optional<std::string>& Cell(TextRow& row, std::string_view column) const;

    /// Adds columns, Null in all rows.
    void AddColumns(const std::vector<std::string>& added);
};

/// Throws TextTableError.
TextTable ParseTextTable(const std::string& name, std::string_view content);

/// The same table with its columns aligned: each cell as wide as the widest of its column, but for the last
/// filled one of a line. Throws TextTableError.
std::string AlignTextTable(const std::string& name, std::string_view content);

}  // namespace kelvor
