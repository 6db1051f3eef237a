#pragma once

#include <string>

#include "forms/screen_context.h"
#include "reports/engine.h"

namespace kelvor {

/// What a layout may show beside the staging tables, of the report of a screen.
decltype(ReportRequest::texts) ReportTexts(const ScreenContext& context, const std::string& screen,
                                           const std::string& projectFile);

}  // namespace kelvor
