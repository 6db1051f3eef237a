#include "platform/descriptor.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

#include "platform/system_reason.h"

namespace kelvor {

void ThrowErrno() { throw FileError(SystemReason(errno)); }

Descriptor::Descriptor(const Path& path, int flags, mode_t mode)
    : fd_(::open(path.c_str(), flags | O_CLOEXEC, mode)) {
    if (fd_ < 0) ThrowErrno();
}

Descriptor::~Descriptor() {
    if (fd_ >= 0) ::close(fd_);
}

void Descriptor::Close() {
    if (::close(std::exchange(fd_, -1)) != 0) ThrowErrno();
}

void Descriptor::Settle() const {
    const int copy = ::dup(fd_);
    if (copy < 0 || ::close(copy) != 0) ThrowErrno();
}

bool Descriptor::Lock() const { return ::flock(fd_, LOCK_EX | LOCK_NB) == 0; }

bool Descriptor::IsStillAt(const Path& path) const {
    struct stat opened {};
    struct stat named {};
    return ::fstat(fd_, &opened) == 0 && ::lstat(path.c_str(), &named) == 0 &&
           opened.st_dev == named.st_dev && opened.st_ino == named.st_ino;
}

}  // namespace kelvor
