#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/file_system.h"

namespace kelvor::test {

/// A file system that passes every operation on to another one, but for one that goes wrong.
class FaultyFileSystem : public FileSystem {
  public:
    struct Plan {
        /// Which operation goes wrong, counted from 0; -1 for none. What comes after it works again.
        int operation = -1;

        /// If it writes, so many bytes of the content reach the file first, as on a disk that runs
        /// full. With 0 the file is not touched.
        std::size_t bytes = 0;

        /// The process ends there, by SIGKILL, instead of getting a FileError. For death tests.
        bool kill = false;

        /// There is no memory for it: std::bad_alloc instead of a FileError.
        bool outOfMemory = false;
    };

    /// What a FileError of this file system says.
    static constexpr const char* kReason = "No space left on device";

    FaultyFileSystem(FileSystem& inner, Plan plan) : inner_(inner), plan_(plan) {}

    /// How many operations were asked for so far. Kind, IsWritable, Resolve, Names and RemoveUnheld do
    /// not count and never go wrong.
    [[nodiscard]] int operations() const { return operations_; }

    [[nodiscard]] FileKind Kind(const Path& path) const override { return inner_.Kind(path); }
    [[nodiscard]] std::string Read(const Path& path, std::size_t limit) const override;
    [[nodiscard]] std::string ReadStart(const Path& path, std::size_t count) const override;
    void Write(const Path& path, std::string_view content) override;
    [[nodiscard]] std::unique_ptr<FileHold> WriteNew(const Path& path, std::string_view content,
                                                     FileAccess access) override;
    [[nodiscard]] std::vector<std::string> Names(const Path& folder) const override {
        return inner_.Names(folder);
    }
    void RemoveUnheld(const Path& path) override { inner_.RemoveUnheld(path); }
    void Flush(const Path& path) override;
    void Rename(const Path& from, const Path& to) override;
    void Remove(const Path& path) override;
    void MakeDirectory(const Path& path) override;
    [[nodiscard]] bool IsWritable(const Path& path) const override { return inner_.IsWritable(path); }
    void CopyPermissions(const Path& from, const Path& to) override;
    [[nodiscard]] Path Resolve(const Path& path) const override { return inner_.Resolve(path); }

  private:
    /// Counts an operation. True if it is the one that goes wrong.
    [[nodiscard]] bool GoesWrong() const { return operations_++ == plan_.operation; }

    [[noreturn]] void Fail() const;
    void CountOrFail() const;

    FileSystem& inner_;
    Plan plan_;
    mutable int operations_ = 0;
};

}  // namespace kelvor::test
