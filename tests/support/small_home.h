#pragma once

#include <SQLiteCpp/SQLiteCpp.h>

#include "support/test_home.h"

namespace kelvor::test {

/// A home whose projects have one cell of each variable, so that opening many of them costs little, and
/// whose list of recent files takes none, so that nothing waits for the disk.
class SmallHome {
  public:
    SmallHome() {
        Run("DataBase/Kelvor.mdb", "UPDATE Variable SET Dim1 = 1, Dim2 = 1; DELETE FROM RecentFiles; VACUUM");
        Run("kvrwork.tpl", "DELETE FROM Project WHERE Dim1 > 1 OR Dim2 > 1; VACUUM");
    }

    [[nodiscard]] Home home() const { return home_.home(); }
    Path operator/(const std::string& name) const { return home_ / name; }

  private:
    void Run(const std::string& file, const char* statements) {
        SQLite::Database database((home_ / file).string(), SQLite::OPEN_READWRITE);
        database.exec(statements);
    }

    TestHome home_;
};

}  // namespace kelvor::test
