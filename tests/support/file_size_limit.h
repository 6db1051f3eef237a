#pragma once

#include <sys/resource.h>

#include <csignal>

namespace kelvor::test {

/// While it lives, no file of this process can be written beyond a size, as on a disk that is full.
class FileSizeLimit {
  public:
    explicit FileSizeLimit(rlim_t bytes) {
        former_ = std::signal(SIGXFSZ, SIG_IGN);  // the write fails instead
        ::getrlimit(RLIMIT_FSIZE, &limit_);
        const rlimit lower{bytes, limit_.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &lower);
    }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;
    ~FileSizeLimit() {
        ::setrlimit(RLIMIT_FSIZE, &limit_);
        std::signal(SIGXFSZ, former_);
    }

  private:
    rlimit limit_{};
    void (*former_)(int) = nullptr;
};

}  // namespace kelvor::test
