#pragma once

#include <SQLiteCpp/SQLiteCpp.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

#include "shell/project_files.h"
#include "support/test_host.h"

namespace kelvor::test {

/// Runs SQL on a database file, as a foreign program might.
inline void RunSql(const Path& file, const std::string& statements) {
    SQLite::Database database(file.string(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
    database.exec(statements);
}

/// The number in a cell of a project file, read by plain SQL.
inline std::optional<double> NumberInFile(const Path& file, const std::string& name) {
    const SQLite::Database database(file.string(), SQLite::OPEN_READONLY);
    SQLite::Statement row(database, "SELECT RValue FROM Project WHERE Name = ? AND Dim1 = 1 AND Dim2 = 1");
    row.bind(1, name);
    if (!row.executeStep() || row.getColumn(0).isNull()) return std::nullopt;
    return row.getColumn(0).getDouble();
}

/// The names of what lies in a folder, sorted.
inline std::vector<std::string> NamesIn(const Path& folder) {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        names.push_back(entry.path().filename().string());
    }
    std::sort(names.begin(), names.end());
    return names;
}

/// The paths in the list of recent files, newest first.
inline std::vector<std::string> RecentPaths(ProcessState& state) {
    std::vector<std::string> paths;
    for (const RecentFile& row : state.dbCatalogue->RecentFiles()) {
        if (row.fileName) paths.push_back(*row.fileName);
    }
    return paths;
}

/// A running program with a fresh project, and a folder for project files.
class ProjectTest : public testing::Test {
  protected:
    [[nodiscard]] ProcessState& State() { return program_.program.state(); }
    [[nodiscard]] Program& Run() { return program_.program; }
    [[nodiscard]] std::string File(const std::string& name) const { return (folder_ / name).string(); }
    [[nodiscard]] std::vector<std::string> Messages() { return program_.host.record.TakeTexts(); }
    [[nodiscard]] double Get(const std::string& name) { return program_.Get(name); }

    /// A change as a user makes one.
    void Enter(const std::string& name, const std::string& value) { Run().SetValue(name, 1, 1, value); }

    TestProgram program_;
    TemporaryFolder folder_;
};

}  // namespace kelvor::test
