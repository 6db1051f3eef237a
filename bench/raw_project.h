#pragma once

#include <filesystem>
#include <stdexcept>
#include <string>

#include "raw_database.h"
#include "shell/home.h"

namespace kelvor::bench {

/// A project beside the program's own, written with SQLite alone.
class RawProject {
  public:
    /// A copy of the template, under a name of its own in the home.
    RawProject(const Path& home, const std::string& name) {
        const Path file = home / name;
        std::filesystem::copy_file(home / Home::kTemplateName, file);
        database_ = OpenRawWorkCopy(file.string());
        update_ = Prepare(database_.get(),
                          "UPDATE Project SET RValue = ?1, SValue = ?2 WHERE Name = ?3 AND Dim1 = ?4 AND "
                          "Dim2 = ?5");
    }

    void Begin() { Execute(database_.get(), "BEGIN IMMEDIATE"); }
    void Commit() { Execute(database_.get(), "COMMIT"); }

    void Write(const std::string& name, double value) {
        sqlite3_stmt* update = update_.get();
        sqlite3_bind_double(update, 1, value);
        sqlite3_bind_null(update, 2);
        sqlite3_bind_text(update, 3, name.data(), static_cast<int>(name.size()), SQLITE_STATIC);
        sqlite3_bind_int(update, 4, 1);
        sqlite3_bind_int(update, 5, 1);
        if (sqlite3_step(update) != SQLITE_DONE) throw std::runtime_error("a reference write failed");
        sqlite3_reset(update);
    }

  private:
    RawDatabase database_;
    RawStatement update_;
};

}  // namespace kelvor::bench
