#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/file_system.h"

namespace SQLite {
class Database;
}  // namespace SQLite

namespace kelvor {

/// An entry of a drop-down list.
struct ListRow {
    std::int64_t id = 0;         // its place in the table
    std::string name;            // by which the screens know the list
    std::optional<double> sort;  // its place in the list
    std::string value;           // what the list offers
};

/// The drop-down lists, which the user may edit: a database of its own, so that they outlive an
/// update of the catalogue.
class ListDatabase {
  public:
    /// No lists, for a program that cannot read its own: none is offered, and every change is refused.
    ListDatabase();

    /// Opens the database. Throws DatabaseError.
    explicit ListDatabase(const Path& path);
    ListDatabase(const ListDatabase&) = delete;
    ListDatabase& operator=(const ListDatabase&) = delete;
    ~ListDatabase();

    /// The entries of a list in their order: those of a unit system, and those of none, which are offered in
    /// both. Throws DatabaseError.
    [[nodiscard]] std::vector<std::string> Values(std::string_view list, bool metric);

    /// The place, Sort, of the first of these entries that a text with wild cards means; nothing if it means
    /// none, or one without a place. Throws DatabaseError.
    [[nodiscard]] std::optional<double> FindPlace(std::string_view list, std::string_view text, bool metric);

    // What maintains the lists knows them by their description, with wild cards and without regard to case.
    // Each throws DatabaseError.

    /// The descriptions of all lists.
    [[nodiscard]] std::vector<std::string> Descriptions();

    /// The entries of a list in their order, whatever their unit system.
    [[nodiscard]] std::vector<ListRow> Rows(const std::string& description);

    /// Adds an entry behind the last one, with that one's name and without a value. On an empty list it
    /// is the first, with no name.
    void AddRow(const std::string& description);

    /// Deletes the entries of a list that have the place or the value of a row. A row without a place is left
    /// alone, and so is one with an apostrophe in its value.
    void DeleteRows(const std::string& description, const ListRow& row);

    /// Puts a list back to its delivered entries; added ones go.
    void Restore(const std::string& description);

    /// Writes name, place and value of an entry.
    void Write(const ListRow& row);

  private:
    void VisitOffered(std::string_view list, bool metric,
                      const std::function<bool(const std::string& value, std::optional<double> sort)>& visit);
    void Change(const std::function<void()>& statements);

    std::unique_ptr<SQLite::Database> database_;
};

}  // namespace kelvor
