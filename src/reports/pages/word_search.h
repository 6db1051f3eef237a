#pragma once

#include <string_view>
#include <vector>

#include "reports/page_maker.h"
#include "reports/pages/page_breaker.h"

namespace kelvor {

/// Where words stand in the lines of a page, whose text begins at `left` and `top`; without regard to case.
std::vector<PageRectangle> FindWords(const Page& page, std::string_view words, double left, double top);

}  // namespace kelvor
