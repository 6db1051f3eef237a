#include "shell/recent_files.h"

#include <algorithm>
#include <cstddef>
#include <exception>
#include <string_view>
#include <vector>

#include "platform/number_text.h"
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

/// "2004-02-29 10:00:00.000" ten years earlier; the 29th of February is the 28th where there is none. A date
/// that is none stays as it is.
std::string TenYearsBefore(std::string date) {
    constexpr std::size_t kYearDigits = 4;
    constexpr int kYears = 10;
    constexpr int kFirstYear = 1000;  // of those with four digits
    const int before = ParseSubscript(date.substr(0, kYearDigits)).value_or(0) - kYears;
    if (before < kFirstYear) return date;
    const bool isLeap = (before % 4 == 0 && before % 100 != 0) || before % 400 == 0;
    date.replace(0, kYearDigits, std::to_string(before));
    constexpr std::string_view kLeapDay = "-02-29";
    if (!isLeap && date.compare(kYearDigits, kLeapDay.size(), kLeapDay) == 0) {
        date.replace(kYearDigits, kLeapDay.size(), "-02-28");
    }
    return date;
}

}  // namespace

std::string RecentFileAt(ProcessState& state, int position) {
    for (const RecentFile& row : state.dbCatalogue->RecentFiles()) {
        if (row.sortOrder == position) return row.fileName.value_or("");
    }
    return {};
}

void DropRecentFile(ProcessState& state, int position) {
    try {
        state.dbCatalogue->EditRecentFiles([&](std::vector<RecentFile>& rows) {
            for (RecentFile& row : rows) {
                if (row.sortOrder != position) continue;
                row.fileName.reset();
                row.openDate = TenYearsBefore(row.openDate);
            }
            RenumberRecentFiles(rows);
        });
    } catch (const std::exception&) {  // NOLINT(bugprone-empty-catch): the list is a convenience
    }
    RebuildRecentMenu(state);
}

void RebuildRecentMenu(ProcessState& state) {
    state.recentMenu.clear();
    if (state.dbCatalogue == nullptr) return;
    try {
        for (const RecentFile& row : state.dbCatalogue->RecentFiles()) {
            if (row.fileName && !row.fileName->empty()) {
                state.recentMenu.push_back({row.sortOrder, *row.fileName, row.openDate});
            }
        }
    } catch (const std::exception&) {
        state.recentMenu.clear();
    }
}

void AddRecentFile(ProcessState& state, const std::string& path) {
    if (state.dbCatalogue == nullptr || path.empty()) return;
    state.host.dialogs.SetWaitCursor(true);
    try {
        const std::string now = state.host.clock.Timestamp();
        state.dbCatalogue->EditRecentFiles([&](std::vector<RecentFile>& rows) { Record(rows, path, now); });
    } catch (const std::exception&) {  // NOLINT(bugprone-empty-catch): the list is a convenience
    }
    RebuildRecentMenu(state);
    state.host.dialogs.SetWaitCursor(false);
}

}  // namespace kelvor
