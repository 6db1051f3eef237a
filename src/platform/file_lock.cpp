#include "platform/file_lock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

#include "platform/system_reason.h"

namespace kelvor {

namespace {

/// True if the open file is still the one that stands at the path: its former holder may have removed
/// it between our opening and our locking.
bool IsStillAt(int fd, const Path& path) {
    struct stat opened {};
    struct stat named {};
    return ::fstat(fd, &opened) == 0 && ::stat(path.c_str(), &named) == 0 && opened.st_dev == named.st_dev &&
           opened.st_ino == named.st_ino;
}

}  // namespace

FileLock::FileLock(Path path) : path_(std::move(path)) {
    for (;;) {
        const int fd = ::open(path_.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0666);
        if (fd < 0) throw FileError(SystemReason(errno));
        if (::flock(fd, LOCK_EX | LOCK_NB) != 0) {
            ::close(fd);
            return;
        }
        if (IsStillAt(fd, path_)) {
            fd_ = fd;
            return;
        }
        ::close(fd);
    }
}

FileLock::~FileLock() {
    if (fd_ < 0) return;
    ::unlink(path_.c_str());
    ::close(fd_);
}

}  // namespace kelvor
