#pragma once

#include "reports/document/document.h"
#include "reports/document/page_setup.h"
#include "reports/pages/page_breaker.h"

namespace kelvor {

/// The room that the head and the foot of a page take of its text, points each.
inline constexpr double kEdgeRoom = 17.0;

/// Which page of how many, from 1.
struct PageNumber {
    std::size_t number = 1;
    std::size_t count = 1;
};

/// Paints a page with its head and foot; the unit of the painter is the point.
void PaintPage(cairo_t* painter, const TypeSetter& setter, const Document& document, const PageSetup& setup,
               const Page& page, const PageNumber& number);

}  // namespace kelvor
