#pragma once

#include <optional>
#include <string>

namespace kelvor {

/// The two values of a cell. A number is in English units; a text is what was typed, or the value of
/// a text variable. Both empty: the cell is not filled.
struct CellValue {
    std::optional<double> number;
    std::optional<std::string> text;

    [[nodiscard]] bool IsFilled() const { return number.has_value() || text.has_value(); }
    friend bool operator==(const CellValue&, const CellValue&) = default;
};

/// Where a cell stands: its variable's name and its two subscripts, from 1.
struct CellKey {
    std::string name;
    int dim1 = 1;
    int dim2 = 1;
};

/// What a cell was, and what it has become.
struct CellChange {
    CellKey cell;
    CellValue before;
    CellValue after;
};

}  // namespace kelvor
