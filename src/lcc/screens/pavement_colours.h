#pragma once

namespace kelvor {

// The colours of the two pavements in every chart of costs.
inline constexpr const char* kColourOfA = "#2F6FB0";
inline constexpr const char* kColourOfB = "#C8641E";

}  // namespace kelvor
