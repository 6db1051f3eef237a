#pragma once

#include <cstddef>
#include <filesystem>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace kelvor {

using Path = std::filesystem::path;

/// A file operation that failed; what() is the platform's reason, such as "Permission denied".
class FileError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// A file that is larger than its reader takes.
class FileTooLarge : public FileError {
  public:
    FileTooLarge();
};

enum class FileKind { Missing, Regular, Directory, Other };

/// Who may open a new file: its owner alone, or whom the user lets by habit (the umask).
enum class FileAccess { Private, Usual };

/// While it lives, no process takes the file that came with it for an abandoned one.
class FileHold {
  public:
    FileHold() = default;
    FileHold(const FileHold&) = delete;
    FileHold& operator=(const FileHold&) = delete;
    virtual ~FileHold() = default;
};

/// The file operations that Kelvor needs. Each throws FileError on failure, but for Kind.
class FileSystem {
  public:
    FileSystem() = default;
    FileSystem(const FileSystem&) = delete;
    FileSystem& operator=(const FileSystem&) = delete;
    virtual ~FileSystem() = default;

    /// What stands at a path, links followed. A path that cannot be looked at counts as missing.
    [[nodiscard]] virtual FileKind Kind(const Path& path) const = 0;

    /// The content of a regular file of at most `limit` bytes. Throws FileTooLarge for a larger one.
    [[nodiscard]] virtual std::string Read(const Path& path, std::size_t limit) const = 0;

    /// The first `count` bytes of a regular file of any size; less if it is shorter.
    [[nodiscard]] virtual std::string ReadStart(const Path& path, std::size_t count) const = 0;

    /// Creates the file, or empties it if it is there, and writes the content.
    virtual void Write(const Path& path, std::string_view content) = 0;

    /// Makes a file where nothing stands, not even a link, and writes the content.
    [[nodiscard]] virtual std::unique_ptr<FileHold> WriteNew(const Path& path, std::string_view content,
                                                             FileAccess access) = 0;

    /// The names of what stands in a folder.
    [[nodiscard]] virtual std::vector<std::string> Names(const Path& folder) const = 0;

    /// Removes a plain file of this user that no process holds; leaves anything else.
    virtual void RemoveUnheld(const Path& path) = 0;

    /// Brings a file's content, or a folder's entries, to the disk.
    virtual void Flush(const Path& path) = 0;

    /// Renames, replacing `to` at one stroke.
    virtual void Rename(const Path& from, const Path& to) = 0;

    virtual void Remove(const Path& path) = 0;
    virtual void MakeDirectory(const Path& path) = 0;

    /// True if this process may write to an existing file.
    [[nodiscard]] virtual bool IsWritable(const Path& path) const = 0;

    /// Gives `to` the permissions of `from`.
    virtual void CopyPermissions(const Path& from, const Path& to) = 0;

    /// The path with links followed, also where its last part is missing.
    [[nodiscard]] virtual Path Resolve(const Path& path) const = 0;
};

/// The file system of the machine.
class NativeFileSystem : public FileSystem {
  public:
    [[nodiscard]] FileKind Kind(const Path& path) const override;
    [[nodiscard]] std::string Read(const Path& path, std::size_t limit) const override;
    [[nodiscard]] std::string ReadStart(const Path& path, std::size_t count) const override;
    void Write(const Path& path, std::string_view content) override;
    [[nodiscard]] std::unique_ptr<FileHold> WriteNew(const Path& path, std::string_view content,
                                                     FileAccess access) override;
    [[nodiscard]] std::vector<std::string> Names(const Path& folder) const override;
    void RemoveUnheld(const Path& path) override;
    void Flush(const Path& path) override;
    void Rename(const Path& from, const Path& to) override;
    void Remove(const Path& path) override;
    void MakeDirectory(const Path& path) override;
    [[nodiscard]] bool IsWritable(const Path& path) const override;
    void CopyPermissions(const Path& from, const Path& to) override;
    [[nodiscard]] Path Resolve(const Path& path) const override;
};

}  // namespace kelvor
