#pragma once

#include <vector>

#include "reports/pages/strip.h"

namespace kelvor {

/// A strip on a page, so many points below the upper edge of the text.
struct PlacedStrip {
    const Strip* strip = nullptr;
    double top = 0.0;
    double share = 1.0;  // of a drawing's height and width: it may be smaller to stay on a page
};

using Page = std::vector<PlacedStrip>;

/// Shares strips among pages of a height. Strips that are to be kept together are, unless a whole page is too
/// small for them. A drawing for which the rest of a page is a little too low is drawn smaller there, so that
/// it does not stand alone on the next. Above the rows of a table that goes on stand its headings again. At
/// least one page. The pages point to the strips.
std::vector<Page> BreakIntoPages(const std::vector<Strip>& strips, double height);

}  // namespace kelvor
