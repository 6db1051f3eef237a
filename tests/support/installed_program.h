#pragma once

#include "home/shipped_parts.h"
#include "support/test_home.h"

namespace kelvor::test {

/// A program as it is installed: its folder of programs, empty, and what ships beside it.
class InstalledProgram {
  public:
    InstalledProgram() {
        std::filesystem::create_directories(programs());
        std::filesystem::create_directories(shipped().parent_path());
        const TestHome built;
        std::filesystem::copy(built.path(), shipped(), std::filesystem::copy_options::recursive);
        std::filesystem::remove_all(shipped() / "Languages");  // read from there, and in no home of a user
        List();
    }

    [[nodiscard]] Path programs() const { return folder_ / "bin"; }
    [[nodiscard]] Path shipped() const { return folder_ / "share/kelvor"; }

    /// Lists what ships, after a change as another version brings it.
    void List() const {
        const NativeFileSystem files;
        WriteFile(shipped() / ShippedParts::kListName, ListShippedParts(files, shipped()));
    }

  private:
    TemporaryFolder folder_;
};

}  // namespace kelvor::test
