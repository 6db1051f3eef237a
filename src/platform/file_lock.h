#pragma once

#include <memory>

#include "platform/file_system.h"

namespace kelvor {

class Descriptor;

/// A lock that one process at a time holds on a path, for as long as this object lives. The lock file
/// goes with it; a process that is killed leaves the file behind but not the lock.
class FileLock {
  public:
    /// Takes the lock. Throws FileError if the lock file cannot be made, and gives an object that
    /// does not hold() the lock if another process has it.
    explicit FileLock(Path path);
    FileLock(const FileLock&) = delete;
    FileLock& operator=(const FileLock&) = delete;
    ~FileLock();

    [[nodiscard]] bool holds() const { return file_ != nullptr; }

  private:
    Path path_;
    std::unique_ptr<Descriptor> file_;
};

}  // namespace kelvor
