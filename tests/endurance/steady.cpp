#include "endurance/steady.h"

#include <malloc.h>
#include <unistd.h>

#include <filesystem>
#include <iterator>

#include "endurance/endurance.h"

namespace kelvor::test {

namespace {

/// Growth of what is allocated that caches explain, and that a leak in every round exceeds.
constexpr long kFlatKilobytes = 512;

/// What is allocated and not freed. An address sanitizer keeps freed memory aside to catch late uses of it,
/// so that its figure is no measure: 0 there; what is never freed is told by its leak check when the run
/// ends.
long AllocatedKilobytes() {
#if defined(__SANITIZE_ADDRESS__)
    return 0;
#else
    const struct mallinfo2 heap = ::mallinfo2();
    return static_cast<long>((heap.uordblks + heap.hblkhd) / 1024);
#endif
}

std::ptrdiff_t OpenFiles() {
    return std::distance(std::filesystem::directory_iterator("/proc/self/fd"),
                         std::filesystem::directory_iterator());
}

}  // namespace

std::string Repeat(const std::string& what, int count, const std::function<void(int)>& act) {
    const int warm = count / 10 + 1;
    for (int i = 0; i < warm; ++i) act(i);
    const long memory = AllocatedKilobytes();
    const std::ptrdiff_t files = OpenFiles();
    for (int i = warm; i < count; ++i) act(i);
    const long growth = AllocatedKilobytes() - memory;
    Hold(OpenFiles() == files, what + ": no file stays open");
    Hold(growth < kFlatKilobytes,
         what + ": the memory is flat, but grew by " + std::to_string(growth) + " KiB");
    return std::to_string(count) + " " + what + ": +" + std::to_string(growth) + " KiB, " +
           std::to_string(files) + " files open throughout";
}

}  // namespace kelvor::test
