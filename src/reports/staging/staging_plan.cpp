#include "reports/staging/staging_plan.h"

#include <algorithm>
#include <stdexcept>

namespace kelvor {

StagingPlan::StagingPlan(SQLite::Database& database) {
    try {
        SQLite::Statement columns(
            database,
            R"(SELECT "Filling", "Column", "Type", "Rule", "Source" FROM StagingColumn ORDER BY rowid)");
        while (columns.executeStep()) {
            const std::string filling = columns.getColumn(0);
            if (fillings_.empty() || fillings_.back().name != filling) fillings_.push_back({filling, {}});
            fillings_.back().columns.push_back({columns.getColumn(1),
                                                columns.getColumn(2).getString() == "text",
                                                columns.getColumn(3), columns.getColumn(4)});
        }
        SQLite::Statement tables(database, R"(SELECT "Name", "ColumnsOf" FROM StagingTable ORDER BY rowid)");
        while (tables.executeStep()) tables_.push_back({tables.getColumn(0), tables.getColumn(1)});
    } catch (const SQLite::Exception& failure) {
        throw ToDatabaseError(failure);
    }
}

const StagingFilling& StagingPlan::Filling(std::string_view name) const {
    const auto found = std::find_if(fillings_.begin(), fillings_.end(),
                                    [&](const StagingFilling& f) { return f.name == name; });
    if (found == fillings_.end()) throw std::logic_error("no filling " + std::string(name));
    return *found;
}

}  // namespace kelvor
