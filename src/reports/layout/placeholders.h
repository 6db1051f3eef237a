#pragma once

#include <cstddef>
#include <functional>
#include <map>
#include <stdexcept>
#include <string>
#include <string_view>

#include "reports/staged_tables.h"

namespace kelvor {

/// Texts that a layout may show beside the staging tables, by name.
using LayoutTexts = std::map<std::string, std::string, std::less<>>;

/// What the placeholders of a layout stand for at one place: all tables and texts, and the row of a table
/// whose columns are named without it.
struct LayoutScope {
    const StagedTables& tables;
    const LayoutTexts& texts;
    const StagedTable* table = nullptr;
    std::size_t row = 0;
};

/// A placeholder that means nothing. `line` counts the line breaks of its text before it.
class PlaceholderError : public std::runtime_error {
  public:
    PlaceholderError(const std::string& reason, std::size_t line) : std::runtime_error(reason), line_(line) {}
    [[nodiscard]] std::size_t line() const { return line_; }

  private:
    std::size_t line_;
};

/// Puts values in the place of what stands in braces:
///
///     {SN}                 the column SN of the scope's row, in the picture of its variable; else the text
///     SN {Rigid.DEPTH}        the column DEPTH of the first row of the table Rigid {DEPTH as #,##0.00}  in a
///     picture of the layout's own {unit of DEPTH}      the label of the column's unit
///     {{ and }}            a brace
///
/// Blanks and line breaks of the layout itself become one blank; those of a value stay. A table without the
/// row gives an empty text. Throws PlaceholderError.
std::string FillPlaceholders(std::string_view text, const LayoutScope& scope);

}  // namespace kelvor
