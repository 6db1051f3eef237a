#pragma once

#include <memory>

#include "platform/file_system.h"
#include "reports/engine.h"

namespace kelvor {

/// The report engine of Kelvor's own.
std::unique_ptr<ReportEngine> MakeReportEngine(FileSystem& files);

}  // namespace kelvor
