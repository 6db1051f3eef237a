#pragma once

#include "reports/document/document.h"
#include "reports/document/page_setup.h"
#include "reports/pages/strip.h"

namespace kelvor {

/// A picture in its size, made smaller where it is larger than the room; without a surface if it cannot be
/// read.
PlacedPicture PlacePicture(const blocks::Picture& picture, const PointSize& room);

}  // namespace kelvor
