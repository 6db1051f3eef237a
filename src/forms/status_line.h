#pragma once

#include <string>

namespace kelvor {

/// A sentence that says how things stand.
struct StatusLine {
    std::string text;
    bool warns = false;
};

}  // namespace kelvor
