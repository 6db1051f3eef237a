#pragma once

#include <string>
#include <string_view>

namespace kelvor {

/// A text as it stands between tags or in an attribute of XML and HTML. Line breaks stay.
std::string EscapedMarkup(std::string_view text);

}  // namespace kelvor
