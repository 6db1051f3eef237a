#include "platform/file_system.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <system_error>

#include "platform/system_reason.h"

namespace kelvor {

namespace {

/// A chain of more links than this counts as a circle, as it does for the kernel.
constexpr int kMostLinks = 40;

[[noreturn]] void ThrowErrno() { throw FileError(SystemReason(errno)); }

void ThrowIf(const std::error_code& error) {
    if (error) throw FileError(SystemReason(error.value()));
}

/// An open file that closes itself.
class Descriptor {
  public:
    Descriptor(const Path& path, int flags, mode_t mode = 0666)
        : fd_(::open(path.c_str(), flags | O_CLOEXEC, mode)) {
        if (fd_ < 0) ThrowErrno();
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor() {
        if (fd_ >= 0) ::close(fd_);
    }

    [[nodiscard]] int get() const { return fd_; }

    /// Some file systems report a failed write only here.
    void Close() {
        const int fd = fd_;
        fd_ = -1;
        if (::close(fd) != 0) ThrowErrno();
    }

  private:
    int fd_;
};

void WriteAndClose(Descriptor& file, std::string_view content) {
    while (!content.empty()) {
        const ssize_t count = ::write(file.get(), content.data(), content.size());
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) ThrowErrno();
        content.remove_prefix(static_cast<std::size_t>(count));
    }
    file.Close();
}

/// A regular file that is open for reading.
class RegularFile {
  public:
    // Without O_NONBLOCK the opening of a pipe would wait for a writer.
    explicit RegularFile(const Path& path) : file_(path, O_RDONLY | O_NONBLOCK) {
        struct stat status {};
        if (::fstat(file_.get(), &status) != 0) ThrowErrno();
        if (S_ISDIR(status.st_mode)) throw FileError(SystemReason(EISDIR));
        if (!S_ISREG(status.st_mode)) throw FileError("Not a regular file");
        size_ = static_cast<std::size_t>(status.st_size);
    }

    [[nodiscard]] std::size_t size() const { return size_; }

    [[nodiscard]] std::string ReadStart(std::size_t length) const {
        std::string content(length, '\0');
        std::size_t done = 0;
        while (done < length) {
            const ssize_t count = ::read(file_.get(), content.data() + done, length - done);
            if (count < 0 && errno == EINTR) continue;
            if (count < 0) ThrowErrno();
            if (count == 0) break;
            done += static_cast<std::size_t>(count);
        }
        content.resize(done);
        return content;
    }

  private:
    Descriptor file_;
    std::size_t size_ = 0;
};

/// A path beside the target under a name that no other process uses. Of a long name only the beginning
/// is in it, as the platform limits names.
Path TemporaryBeside(const Path& target) {
    const std::string name = target.filename().string().substr(0, 200);
    return target.parent_path() / ("." + name + "." + std::to_string(::getpid()) + ".new");
}

/// Removes a half-made file without hiding the failure that made it one.
void RemoveQuietly(FileSystem& files, const Path& path) {
    try {
        files.Remove(path);
    } catch (const FileError&) {  // NOLINT(bugprone-empty-catch): nothing was made, or it cannot be removed
    }
}

}  // namespace

FileTooLarge::FileTooLarge() : FileError(SystemReason(EFBIG)) {}

FileKind NativeFileSystem::Kind(const Path& path) const {
    std::error_code error;
    switch (std::filesystem::status(path, error).type()) {
        case std::filesystem::file_type::regular:
            return FileKind::Regular;
        case std::filesystem::file_type::directory:
            return FileKind::Directory;
        case std::filesystem::file_type::none:
        case std::filesystem::file_type::not_found:
            return FileKind::Missing;
        default:
            return FileKind::Other;
    }
}

std::string NativeFileSystem::Read(const Path& path, std::size_t limit) const {
    const RegularFile file(path);
    if (file.size() > limit) throw FileTooLarge();
    return file.ReadStart(file.size());
}

std::string NativeFileSystem::ReadStart(const Path& path, std::size_t count) const {
    return RegularFile(path).ReadStart(count);
}

void NativeFileSystem::Write(const Path& path, std::string_view content) {
    Descriptor file(path, O_WRONLY | O_CREAT | O_TRUNC);
    WriteAndClose(file, content);
}

void NativeFileSystem::WritePrivate(const Path& path, std::string_view content) {
    // What stands there may be open to others, or be open at another program: its content would not be
    // private. The new file is one that nobody has yet.
    Remove(path);
    Descriptor file(path, O_WRONLY | O_CREAT | O_EXCL, 0600);
    WriteAndClose(file, content);
}

void NativeFileSystem::Flush(const Path& path) {
    const Descriptor file(path, O_RDONLY);
    // Some file systems cannot flush a folder; there is nothing more to be done for them.
    if (::fsync(file.get()) != 0 && errno != EINVAL) ThrowErrno();
}

void NativeFileSystem::Rename(const Path& from, const Path& to) {
    std::error_code error;
    std::filesystem::rename(from, to, error);
    ThrowIf(error);
}

void NativeFileSystem::Remove(const Path& path) {
    std::error_code error;
    std::filesystem::remove(path, error);
    ThrowIf(error);
}

void NativeFileSystem::MakeDirectory(const Path& path) {
    std::error_code error;
    std::filesystem::create_directory(path, error);
    ThrowIf(error);
}

bool NativeFileSystem::IsWritable(const Path& path) const {
    return ::faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) == 0;
}

void NativeFileSystem::CopyPermissions(const Path& from, const Path& to) {
    std::error_code error;
    const auto permissions = std::filesystem::status(from, error).permissions();
    ThrowIf(error);
    std::filesystem::permissions(to, permissions, error);
    ThrowIf(error);
}

Path NativeFileSystem::Resolve(const Path& path) const {
    std::error_code error;
    Path resolved = std::filesystem::absolute(path, error);
    ThrowIf(error);
    // weakly_canonical stops at a link to a missing file; what that points at is found by going on.
    for (int links = 0; links < kMostLinks; ++links) {
        resolved = std::filesystem::weakly_canonical(resolved, error);
        ThrowIf(error);
        std::error_code missing;
        if (!std::filesystem::is_symlink(resolved, missing)) return resolved;
        resolved = resolved.parent_path() / std::filesystem::read_symlink(resolved, error);
        ThrowIf(error);
    }
    throw FileError(SystemReason(ELOOP));
}

void ReplaceFile(FileSystem& files, const Path& target, std::string_view content) {
    const Path resolved = files.Resolve(target);
    const FileKind kind = files.Kind(resolved);
    if (kind == FileKind::Directory) throw FileError(SystemReason(EISDIR));
    if (kind == FileKind::Other) throw FileError("Not a regular file");
    // Renaming would replace a write-protected file all the same.
    if (kind == FileKind::Regular && !files.IsWritable(resolved)) throw FileError(SystemReason(EACCES));
    const Path temporary = TemporaryBeside(resolved);
    try {
        if (kind == FileKind::Regular) {
            files.WritePrivate(temporary, content);
            files.CopyPermissions(resolved, temporary);
        } else {
            files.Write(temporary, content);
        }
        files.Flush(temporary);
        files.Rename(temporary, resolved);
    } catch (...) {
        RemoveQuietly(files, temporary);
        throw;
    }
    // From here on the new file is in place, whole. Only its survival of a power cut is still open, and a
    // folder that cannot be flushed is no reason to report a failure.
    try {
        files.Flush(resolved.parent_path());
    } catch (const FileError&) {  // NOLINT(bugprone-empty-catch)
    }
}

}  // namespace kelvor
