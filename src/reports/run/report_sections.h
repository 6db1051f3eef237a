#pragma once

#include <string>

#include "forms/screen_context.h"
#include "reports/document/report_drawing.h"

namespace kelvor {

/// The drawings that the layout of a screen's report may show: `Section`, the section of its pavement, empty
/// where the screen has none or no layer of it has a thickness.
ReportDrawings DrawingsOfReport(const ScreenContext& context, const std::string& screen);

}  // namespace kelvor
