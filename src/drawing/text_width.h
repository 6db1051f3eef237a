#pragma once

#include <string>
#include <string_view>

namespace kelvor {

/// About how wide a text is in an upright sans-serif, in the unit of its size; rather too wide than too
/// narrow, since the letters of the reader's system are not known when a drawing is made.
double TextWidth(std::string_view text, double size, bool bold = false);

/// The text, shortened with an ellipsis at its end if it would be wider than its room.
std::string FitText(std::string_view text, double size, double room);

}  // namespace kelvor
