#pragma once

#include <string>
#include <string_view>

namespace kelvor {

/// A name for a file, made from a title: a blank in the place of what no file's name may hold on any system,
/// no two of them together, none at its ends, no full stop at its start or end, and at most 60 bytes of whole
/// characters. Empty if nothing is left.
std::string FileNameFrom(std::string_view title);

}  // namespace kelvor
