#pragma once

#include <string>

namespace kelvor {

/// The time, as the core asks for it.
class Clock {
  public:
    Clock() = default;
    Clock(const Clock&) = delete;
    Clock& operator=(const Clock&) = delete;
    virtual ~Clock() = default;

    /// Seconds since some fixed moment, to a hundredth; never goes back. Asked often, so it must cost little.
    virtual double SteadySeconds() = 0;

    /// The date and time of day, UTC, as "2001-02-03 04:05:06.789": text order is order in time.
    virtual std::string Timestamp() = 0;
};

class SystemClock : public Clock {
  public:
    double SteadySeconds() override;
    std::string Timestamp() override;
};

}  // namespace kelvor
