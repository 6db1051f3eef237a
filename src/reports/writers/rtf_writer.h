#pragma once

#include <string>

#include "reports/document/document.h"
#include "reports/document/page_setup.h"

namespace kelvor {

/// A report for word processors: Rich Text Format 1.9, letters beyond ASCII by their numbers. Its pages have
/// the document's head and foot with their number, and a table repeats its headings.
std::string WriteRtf(const Document& document, const PageSetup& setup);

}  // namespace kelvor
