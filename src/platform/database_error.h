#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

namespace kelvor {

/// What every database begins with: a file with another beginning is none.
inline constexpr std::string_view kDatabaseMagic("SQLite format 3\0", 16);

/// A database that cannot be used; what() is the reason, for a message.
class DatabaseError : public std::runtime_error {
  public:
    DatabaseError(const std::string& reason, bool notADatabase)
        : std::runtime_error(reason), notADatabase_(notADatabase) {}

    /// True if the file is empty or no database at all, rather than a database with a fault.
    [[nodiscard]] bool notADatabase() const { return notADatabase_; }

  private:
    bool notADatabase_;
};

}  // namespace kelvor
