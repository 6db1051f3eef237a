#include "make_data/list_tables.h"

#include <map>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "make_data/table_files.h"

namespace kelvor {

namespace {

using Cell = std::optional<std::string>;

const ColumnNames kEntryColumns = {"Name",      "Sort",      "Value",      "UnitSystem",
                                   "ShowValue", "ShowUnits", "Description"};

/// The unit systems that an entry has a row for; one without a system if it names none.
std::vector<Cell> SystemsOf(const Cell& letters) {
    if (!letters) return {std::nullopt};
    std::vector<Cell> systems;
    for (const char letter : *letters) systems.emplace_back(std::string(1, letter));
    return systems;
}

/// Adds to `all` the entries of one list, under the name and the description of the list.
void AddEntries(TextTable& lists, TextRow& list, TextTable& entries, TextTable& all) {
    const Cell& name = lists.Cell(list, "Name");
    const Cell& other = lists.Cell(list, "EntriesOf");
    std::map<Cell, int> last;
    for (TextRow& entry : entries.rows) {
        if (entries.Cell(entry, "Name") != (other ? other : name)) continue;
        for (const Cell& system : SystemsOf(entries.Cell(entry, "UnitSystem"))) {
            TextRow row{entry.place, std::vector<Cell>(kEntryColumns.size())};
            all.Cell(row, "Name") = name;
            all.Cell(row, "Description") = lists.Cell(list, "Description");
            all.Cell(row, "UnitSystem") = system;
            all.Cell(row, "Value") = entries.Cell(entry, "Value");
            all.Cell(row, "Sort") = std::to_string(++last[system]);
            all.rows.push_back(std::move(row));
        }
    }
    if (last.empty()) list.Refuse("the list has no entries");
}

}  // namespace

TextTable ReadLists(const Path& data) {
    TextTable lists = ReadTable(data / "lists" / "List.tsv", {"Name", "Description", "EntriesOf"});
    TextTable entries = ReadTables(data / "lists" / "entries", {"Name", "UnitSystem", "Value"});
    TextTable all{"lists", kEntryColumns, {}};
    std::set<Cell> names;
    for (TextRow& list : lists.rows) {
        names.insert(lists.Cell(list, "Name"));
        AddEntries(lists, list, entries, all);
    }
    for (TextRow& entry : entries.rows) {
        const Cell& name = entries.Cell(entry, "Name");
        if (!names.contains(name)) entry.Refuse("there is no list " + name.value_or(""));
    }
    return all;
}

}  // namespace kelvor
