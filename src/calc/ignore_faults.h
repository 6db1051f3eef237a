#pragma once

#include "platform/real.h"

namespace kelvor {

/// Runs a calculation or a step of one. A fault abandons it, and what it had not written yet stays as it was.
template <typename Step>
void IgnoreFaults(Step step) {
    try {
        step();
    } catch (const ArithmeticFault&) {  // NOLINT(bugprone-empty-catch): no message belongs here
    }
}

}  // namespace kelvor
