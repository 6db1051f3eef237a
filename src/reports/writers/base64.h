#pragma once

#include <string>
#include <string_view>

namespace kelvor {

/// Bytes as letters (RFC 4648, Section 4).
std::string Base64(std::string_view bytes);

}  // namespace kelvor
