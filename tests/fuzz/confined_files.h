#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/file_system.h"

namespace kelvor::test {

/// The machine's files below one folder, and none elsewhere, so that no input reaches anything of the
/// machine. Does not wait for the disk.
class ConfinedFiles : public NativeFileSystem {
  public:
    explicit ConfinedFiles(Path folder) : folder_(std::move(folder)) {}

    [[nodiscard]] FileKind Kind(const Path& path) const override {
        return IsInside(path) ? NativeFileSystem::Kind(path) : FileKind::Missing;
    }
    [[nodiscard]] std::string Read(const Path& path, std::size_t limit) const override {
        Check(path);
        return NativeFileSystem::Read(path, limit);
    }
    [[nodiscard]] std::string ReadStart(const Path& path, std::size_t count) const override {
        Check(path);
        return NativeFileSystem::ReadStart(path, count);
    }
    void Write(const Path& path, std::string_view content) override {
        Check(path);
        NativeFileSystem::Write(path, content);
    }
    [[nodiscard]] std::unique_ptr<FileHold> WriteNew(const Path& path, std::string_view content,
                                                     FileAccess access) override {
        Check(path);
        return NativeFileSystem::WriteNew(path, content, access);
    }
    [[nodiscard]] std::vector<std::string> Names(const Path& folder) const override {
        Check(folder / "file");
        return NativeFileSystem::Names(folder);
    }
    void RemoveUnheld(const Path& path) override {
        Check(path);
        NativeFileSystem::RemoveUnheld(path);
    }
    void Flush(const Path& path) override { Check(path); }
    void Rename(const Path& from, const Path& to) override {
        Check(from);
        Check(to);
        NativeFileSystem::Rename(from, to);
    }
    void Remove(const Path& path) override {
        Check(path);
        NativeFileSystem::Remove(path);
    }
    void MakeDirectory(const Path& path) override {
        Check(path);
        NativeFileSystem::MakeDirectory(path);
    }
    void CopyPermissions(const Path& from, const Path& to) override {
        Check(from);
        Check(to);
        NativeFileSystem::CopyPermissions(from, to);
    }

  private:
    [[nodiscard]] bool IsInside(const Path& path) const {
        std::error_code error;
        const Path relative = std::filesystem::weakly_canonical(path, error).lexically_relative(folder_);
        return !error && !relative.empty() && *relative.begin() != "..";
    }
    void Check(const Path& path) const {
        if (!IsInside(path)) throw FileError("Permission denied");
    }

    Path folder_;
};

}  // namespace kelvor::test
