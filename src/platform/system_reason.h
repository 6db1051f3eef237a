#pragma once

#include <string>

namespace kelvor {

/// What the system's number of a failure (errno) means, in English whatever the locale of the process:
/// messages are in one language.
std::string SystemReason(int code);

}  // namespace kelvor
