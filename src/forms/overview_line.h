#pragma once

#include <optional>
#include <string>
#include <vector>

namespace kelvor {

/// A result of a screen, as the screen shows it in the active units.
struct OverviewResult {
    std::string name;   // of its variable
    std::string title;  // what it is called
    std::string text;
    std::string unit;
};

/// What one screen holds: a design, an overlay, a route to the traffic, a set of deflection tests or the
/// comparison of costs.
struct OverviewLine {
    std::string name;   // of the screen
    std::string title;  // its caption
    std::vector<OverviewResult> results;
    std::optional<bool> balanced;  // whether the stored numbers satisfy its equation; nothing if it has none
};

}  // namespace kelvor
