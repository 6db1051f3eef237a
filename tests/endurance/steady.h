#pragma once

#include <functional>
#include <string>

namespace kelvor::test {

/// Does something many times; memory and open files may not grow once it was done a tenth of the times. What
/// was reached, in words.
std::string Repeat(const std::string& what, int count, const std::function<void(int)>& act);

}  // namespace kelvor::test
