#pragma once

#include <string>

#include "platform/file_system.h"
#include "shell/home.h"

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

/// A copy of the built home folder (configuration, databases, template) in a temporary folder, with the
/// work copy in it.
class TestHome {
  public:
    TestHome();
    explicit TestHome(const Path& folder);

    [[nodiscard]] const Path& path() const { return folder_.path(); }
    [[nodiscard]] Home home() const { return {path(), path()}; }
    Path operator/(const std::string& name) const { return path() / name; }

  private:
    void Fill();

    TemporaryFolder folder_;
};

std::string ReadFile(const Path& path);
void WriteFile(const Path& path, const std::string& content);

/// One text that changes if any file or folder below a folder comes, goes or changes.
std::string Checksum(const Path& folder);

}  // namespace kelvor::test
