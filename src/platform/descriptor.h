#pragma once

#include <sys/types.h>

#include "platform/file_system.h"

namespace kelvor {

/// Throws the reason of the system call that failed last.
[[noreturn]] void ThrowErrno();

/// An open file that closes itself.
class Descriptor {
  public:
    /// Opens a path, and closes it for programs that this one starts. Throws FileError.
    Descriptor(const Path& path, int flags, mode_t mode = 0666);
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor();

    [[nodiscard]] int get() const { return fd_; }

    /// Some file systems report a failed write only here.
    void Close();

    /// Has failed writes reported as Close does, and leaves the file open.
    void Settle() const;

    /// Takes the lock of the file for as long as it is open; false if another process has it, or if this file
    /// system knows no locks.
    [[nodiscard]] bool Lock() const;

    /// True if the open file is still the one that stands at the path, links not followed: another process
    /// may have removed it, or put another one there, since it was opened.
    [[nodiscard]] bool IsStillAt(const Path& path) const;

  private:
    int fd_;
};

}  // namespace kelvor
