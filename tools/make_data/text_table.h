#pragma once

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

/// A table kept as text: tab-separated cells, the column names in the first line, one row a line. An
/// empty cell is Null; `\t`, `\n` and `\\` stand for a tab, a line feed and a backslash.
struct TextTable {
    std::string name;
    std::vector<std::string> columns;
    std::vector<std::vector<std::optional<std::string>>> rows;
};

/// Throws TextTableError.
TextTable ParseTextTable(const std::string& name, std::string_view content);

}  // namespace kelvor
