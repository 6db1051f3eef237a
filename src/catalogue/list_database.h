#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/sqlite.h"

namespace kelvor {

/// The drop-down lists, which the user may edit: a database of its own, so that they outlive an
/// update of the catalogue.
class ListDatabase {
  public:
    /// Opens the database. Throws DatabaseError.
    explicit ListDatabase(const Path& path);

    /// The entries of a list in their order: those of a unit system, and those of none, which are offered in
    /// both. Throws DatabaseError.
    [[nodiscard]] std::vector<std::string> Values(std::string_view list, bool metric);

  private:
    SQLite::Database database_;
};

}  // namespace kelvor
