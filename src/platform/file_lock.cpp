#include "platform/file_lock.h"

#include <fcntl.h>
#include <unistd.h>

#include <utility>

#include "platform/descriptor.h"

namespace kelvor {

FileLock::FileLock(Path path) : path_(std::move(path)) {
    for (;;) {
        auto file = std::make_unique<Descriptor>(path_, O_RDWR | O_CREAT | O_NOFOLLOW);
        if (!file->Lock()) return;
        // Its former holder may have removed it between our opening and our locking.
        if (!file->IsStillAt(path_)) continue;
        file_ = std::move(file);
        return;
    }
}

FileLock::~FileLock() {
    if (file_ != nullptr) ::unlink(path_.c_str());
}

}  // namespace kelvor
