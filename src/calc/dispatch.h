#pragma once

#include <initializer_list>
#include <span>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "calc/calc_context.h"

namespace kelvor {

/// Computes one value and writes it to the cell (1, 1) of `target`.
using FieldRoutine = void (*)(CalcContext& context, std::string_view target);

/// Computes one value for a cell and writes it to `target` there.
using CellRoutine = void (*)(CalcContext& context, std::string_view target, int dim1, int dim2);

struct FieldKey {
    std::string_view key;
    FieldRoutine routine;
};

struct CellKeyRoutine {
    std::string_view key;
    CellRoutine routine;
};

/// The keys that one folder of calculations serves.
struct KeyTable {
    std::span<const FieldKey> fields;
    std::span<const CellKeyRoutine> cells;
};

/// Finds the calculation of a key. The catalogue names the key of every computed value in the column
/// Equation; letter case counts.
class Dispatch {
  public:
    /// Joins the tables. Throws std::logic_error if a key stands twice.
    Dispatch(std::initializer_list<KeyTable> tables);

    /// Runs the calculation of a key for a single value. An unknown or empty key does nothing; an
    /// arithmetic fault leaves the target as it was.
    void CalcField(CalcContext& context, std::string_view target, std::string_view key) const;

    /// The same for one cell of a column.
    void CalcCell(CalcContext& context, std::string_view target, int dim1, int dim2,
                  std::string_view key) const;

    /// All keys served, of both kinds.
    [[nodiscard]] std::vector<std::string_view> FieldKeys() const;
    [[nodiscard]] std::vector<std::string_view> CellKeys() const;

  private:
    std::unordered_map<std::string_view, FieldRoutine> fields_;
    std::unordered_map<std::string_view, CellRoutine> cells_;
};

}  // namespace kelvor
