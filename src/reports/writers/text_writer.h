#pragma once

#include <string>

#include "reports/document/document.h"

namespace kelvor {

/// A report as plain text in UTF-8, in columns for letters of one width, lines of at most 92 places where the
/// words allow it.
std::string WriteText(const Document& document);

}  // namespace kelvor
