#pragma once

#include <string>

#include "reports/document/document.h"

namespace kelvor {

/// A report as one page of the web that needs nothing beside it: well-formed XHTML in UTF-8, pictures inside,
/// set for the screen and for printing.
std::string WriteHtml(const Document& document);

}  // namespace kelvor
