#pragma once

#include <string>

#include "platform/file_system.h"

namespace kelvor::test {

/// A folder of a test's own, removed with everything in it.
class TemporaryFolder {
  public:
    TemporaryFolder();
    /// One of a given path, which must not be there yet.
    explicit TemporaryFolder(Path path);
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder();

    [[nodiscard]] const Path& path() const { return path_; }
    Path operator/(const std::string& name) const { return path_ / name; }

  private:
    Path path_;
};

std::string ReadFile(const Path& path);
void WriteFile(const Path& path, const std::string& content);

}  // namespace kelvor::test
