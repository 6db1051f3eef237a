#include "platform/clock.h"

#include <fmt/chrono.h>
#include <fmt/format.h>
#include <time.h>  // NOLINT(modernize-deprecated-headers): clock_gettime

#include <chrono>

namespace kelvor {

double SystemClock::SteadySeconds() {
    timespec time{};
    ::clock_gettime(CLOCK_MONOTONIC_COARSE, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) / 1e9;
}

std::string SystemClock::Timestamp() {
    const auto now = std::chrono::system_clock::now().time_since_epoch();
    const auto milliseconds = std::chrono::duration_cast<std::chrono::milliseconds>(now).count();
    return fmt::format("{:%Y-%m-%d %H:%M:%S}.{:03}", fmt::gmtime(milliseconds / 1000), milliseconds % 1000);
}

}  // namespace kelvor
