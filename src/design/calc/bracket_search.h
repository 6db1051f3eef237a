#pragma once

#include <functional>

#include "platform/clock.h"
#include "platform/real.h"

namespace kelvor {

/// A search for the x at which a rising traffic function meets a target.
struct SearchProblem {
    Real low;  // where the bracket starts
    Real high;
    bool lowers = true;  // a target below the bracket lowers it; else it ends the search
    std::function<void(Real, Real&)> traffic;  // the traffic at x; leaves it as it was on a fault
    Real target;
};

enum class SearchEnd { Found, OutOfTime, BelowBracket };

struct SearchResult {
    SearchEnd end = SearchEnd::OutOfTime;
    Real x;
};

/// How long a search may take by the clock.
inline constexpr double kSearchSeconds = 12.0;

/// Halves the bracket, or moves its ends outwards, until the traffic at an end or at the middle is
/// within a thousandth of the target. Ends with OutOfTime after 12 seconds, and at once when a pass
/// leaves the bracket as it was, since every later pass would be the same.
SearchResult SearchBracket(const SearchProblem& problem, Clock& clock);

}  // namespace kelvor
