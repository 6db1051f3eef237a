#pragma once

#include <cstddef>
#include <string>

namespace kelvor::bench {

/// A PDF file of so many empty pages, by the library that paints reports alone.
std::string WriteEmptyPages(std::size_t count);

}  // namespace kelvor::bench
