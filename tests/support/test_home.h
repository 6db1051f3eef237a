#pragma once

#include <string>

#include "platform/file_system.h"
#include "shell/home.h"
#include "support/temporary_folder.h"

namespace kelvor::test {

/// A copy of the built home folder (configuration, databases, layouts, template) in a temporary folder,
/// with the work copy in it.
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

/// One text that changes if any file or folder below a folder comes, goes or changes.
std::string Checksum(const Path& folder);

}  // namespace kelvor::test
