#pragma once

#include <vector>

#include "reports/document/document.h"
#include "reports/document/page_setup.h"
#include "reports/pages/strip.h"
#include "reports/pages/type_setter.h"

namespace kelvor {

/// The styles of a report, points.
namespace styles {
inline constexpr TextStyle kText{9.0};
inline constexpr TextStyle kLabel{9.0, false, 0.25};
inline constexpr TextStyle kTableHeading{8.0, true};
inline constexpr TextStyle kEdge{8.0, false, 0.35};
}  // namespace styles

/// Sets all blocks of a report in strips that are as wide as the text on a page.
std::vector<Strip> BuildStrips(const TypeSetter& setter, const Document& document, const PageSetup& setup);

}  // namespace kelvor
