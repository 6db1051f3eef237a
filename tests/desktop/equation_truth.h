#pragma once

#include <functional>
#include <string>

namespace kelvor::test {

/// The English number in a cell, by its name; 0 for an empty one.
using NumberOf = std::function<double(const char* name)>;

/// What the line CHECK of a design screen, DeF or DeR, must begin with, by the design equation on plain
/// doubles and the Guide's table of deviates; empty where stored and computed traffic differ by so nearly the
/// permitted 0.2 per cent that rounding decides.
std::string TruthOfCheck(const std::string& screen, const NumberOf& number);

}  // namespace kelvor::test
