#include "shell/recent_files.h"

#include <algorithm>
#include <cstddef>
#include <vector>

#include "platform/sqlite.h"
#include "platform/text.h"

namespace kelvor {

namespace {

bool IsRowOf(const RecentFile& row, const std::string& path) {
    return row.fileName && (*row.fileName == path || Like(*row.fileName, path));
}

/// Numbers the rows from the newest; a free row comes after every other.
void RenumberRecentFiles(std::vector<RecentFile>& rows) {
    std::stable_sort(rows.begin(), rows.end(), [](const RecentFile& a, const RecentFile& b) {
        if (a.fileName.has_value() != b.fileName.has_value()) return a.fileName.has_value();
        return a.openDate > b.openDate;
    });
    for (std::size_t i = 0; i < rows.size(); ++i) rows[i].sortOrder = static_cast<int>(i);
}

void Record(std::vector<RecentFile>& rows, const std::string& path, const std::string& now) {
    if (rows.empty()) return;
    auto row = std::find_if(rows.begin(), rows.end(), [&](const RecentFile& r) { return IsRowOf(r, path); });
    if (row == rows.end()) {
        // The first free row or, if there is none, the oldest.
        row = std::find_if(rows.begin(), rows.end(), [](const RecentFile& r) { return !r.fileName; });
        if (row == rows.end()) --row;
        row->fileName = path;
    }
    row->openDate = now;
    // In front of the others it wins a tie of dates.
    std::rotate(rows.begin(), row, row + 1);
    RenumberRecentFiles(rows);
}

}  // namespace

void AddRecentFile(ProcessState& state, const std::string& path) {
    if (state.dbCatalogue == nullptr || path.empty()) return;
    state.host.dialogs.SetWaitCursor(true);
    try {
        const std::string now = state.host.clock.Timestamp();
        state.dbCatalogue->EditRecentFiles([&](std::vector<RecentFile>& rows) { Record(rows, path, now); });
    } catch (const DatabaseError&) {  // NOLINT(bugprone-empty-catch): the list is a convenience
    }
    state.host.dialogs.SetWaitCursor(false);
}

}  // namespace kelvor
