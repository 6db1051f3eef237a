#pragma once

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "platform/text.h"

namespace kelvor {

/// A cell of a staging table: nothing, a number as the screen shows it, rounded and in the active unit
/// system, or a text.
using StagedValue = std::variant<std::monostate, double, std::string>;

/// A column of a staging table.
struct StagedColumn {
    std::string name;
    std::string picture = {};  // the number picture in which a screen shows its values; empty for texts
    std::string unit = {};  // the label of its variable's unit in the active system; empty if there is none
};

/// A staging table as a report reads it: its columns in their order, and its rows, each with a value for
/// every column.
struct StagedTable {
    std::string name;
    std::vector<StagedColumn> columns;
    std::vector<std::vector<StagedValue>> rows;

    /// The place of a column; nothing if there is none. Names compare without regard to case.
    [[nodiscard]] std::optional<std::size_t> Find(std::string_view column) const {
        const auto found = std::find_if(columns.begin(), columns.end(),
                                        [&](const StagedColumn& c) { return EqualNoCase(c.name, column); });
        if (found == columns.end()) return std::nullopt;
        return static_cast<std::size_t>(found - columns.begin());
    }
};

/// All staging tables at one moment.
struct StagedTables {
    std::vector<StagedTable> tables;

    /// Null if there is no such table. Names compare without regard to case.
    [[nodiscard]] const StagedTable* Find(std::string_view name) const {
        const auto found = std::find_if(tables.begin(), tables.end(),
                                        [&](const StagedTable& t) { return EqualNoCase(t.name, name); });
        return found == tables.end() ? nullptr : &*found;
    }
};

}  // namespace kelvor
