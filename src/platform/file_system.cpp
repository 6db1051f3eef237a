#include "platform/file_system.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>

#include "platform/descriptor.h"
#include "platform/system_reason.h"
#include "platform/translation.h"

namespace kelvor {

namespace {

/// A chain of more links than this counts as a circle, as it does for the kernel.
constexpr int kMostLinks = 40;

void ThrowIf(const std::error_code& error) {
    if (error) throw FileError(SystemReason(error.value()));
}

void WriteAll(const Descriptor& file, std::string_view content) {
    while (!content.empty()) {
        const ssize_t count = ::write(file.get(), content.data(), content.size());
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) ThrowErrno();
        content.remove_prefix(static_cast<std::size_t>(count));
    }
}

/// A new file, which its maker keeps open and locked.
class NewFile : public FileHold {
  public:
    NewFile(const Path& path, std::string_view content, mode_t mode)
        : file_(path, O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW, mode) {
        // Where there are no locks nobody can have one, and so nobody takes the file for abandoned either.
        static_cast<void>(file_.Lock());
        if (!file_.IsStillAt(path)) throw FileError(SystemReason(ENOENT));
        WriteAll(file_, content);
        file_.Settle();
    }

  private:
    Descriptor file_;
};

/// A regular file that is open for reading.
class RegularFile {
  public:
    // Without O_NONBLOCK the opening of a pipe would wait for a writer.
    explicit RegularFile(const Path& path) : file_(path, O_RDONLY | O_NONBLOCK) {
        struct stat status {};
        if (::fstat(file_.get(), &status) != 0) ThrowErrno();
        if (S_ISDIR(status.st_mode)) throw FileError(SystemReason(EISDIR));
        if (!S_ISREG(status.st_mode)) throw FileError(Translated("Not a regular file"));
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
    WriteAll(file, content);
    file.Close();
}

std::unique_ptr<FileHold> NativeFileSystem::WriteNew(const Path& path, std::string_view content,
                                                     FileAccess access) {
    return std::make_unique<NewFile>(path, content, access == FileAccess::Private ? 0600 : 0666);
}

std::vector<std::string> NativeFileSystem::Names(const Path& folder) const {
    std::vector<std::string> names;
    std::error_code error;
    for (std::filesystem::directory_iterator entry(folder, error), end; !error && entry != end;
         entry.increment(error)) {
        names.push_back(entry->path().filename().string());
    }
    ThrowIf(error);
    return names;
}

void NativeFileSystem::RemoveUnheld(const Path& path) {
    // Without O_NONBLOCK the opening of a pipe would wait for a reader.
    const Descriptor file(path, O_RDWR | O_NOFOLLOW | O_NONBLOCK);
    struct stat status {};
    if (::fstat(file.get(), &status) != 0) ThrowErrno();
    const bool isOurs = S_ISREG(status.st_mode) && status.st_uid == ::geteuid() && status.st_nlink == 1;
    if (isOurs && file.Lock() && file.IsStillAt(path)) Remove(path);
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

}  // namespace kelvor
