#pragma once

#include <functional>
#include <stdexcept>
#include <string>
#include <string_view>

#include "calc/calc_context.h"
#include "reports/staged_tables.h"

namespace kelvor {

/// A column that has no value; what() says why.
class StagingFault : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// What the function of a column works on.
struct ColumnTask {
    const CalcContext& context;
    const std::string& source;  // of the column: most often a variable
    int dim1 = 1;               // the subscripts of the row
    int dim2 = 1;
    const std::function<StagedValue(const std::string&)>& staged;  // what a column of the row holds already
};

/// Makes the value of a column. Throws StagingFault or ArithmeticFault.
using ColumnRule = StagedValue (*)(const ColumnTask& task);

/// The function of a name that the catalogue gives. Throws std::logic_error if there is none.
///
/// `Shown` is the number that the screen shows, 0 for an empty cell; for a text column, `ShownText`. `Unit`
/// is the unit label of the variable. `Fixed` is what the source says itself. The others serve single
/// columns.
ColumnRule FindColumnRule(std::string_view name, bool isText);

/// The number that a screen shows for a cell, rounded and in the active unit system; an empty one is 0.
/// Throws StagingFault for a text that is no number.
double ShownNumber(const CalcContext& context, const std::string& variable, int dim1 = 1, int dim2 = 1);

}  // namespace kelvor
