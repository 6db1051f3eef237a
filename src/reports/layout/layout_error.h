#pragma once

#include <stdexcept>

namespace kelvor {

/// A layout that is missing or wrong; what() tells file, line and what is wrong there, in a sentence.
class LayoutError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

}  // namespace kelvor
