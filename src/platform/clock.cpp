#include "platform/clock.h"

#include <fmt/chrono.h>
#include <fmt/format.h>

#include <chrono>

namespace kelvor {

double SystemClock::SteadySeconds() {
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

std::string SystemClock::Timestamp() {
    const auto now = std::chrono::system_clock::now().time_since_epoch();
    const auto milliseconds = std::chrono::duration_cast<std::chrono::milliseconds>(now).count();
    return fmt::format("{:%Y-%m-%d %H:%M:%S}.{:03}", fmt::gmtime(milliseconds / 1000), milliseconds % 1000);
}

}  // namespace kelvor
