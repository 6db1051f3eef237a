#include "reports/own_engine.h"

#include "reports/report_maker.h"

namespace kelvor {

std::unique_ptr<ReportEngine> MakeReportEngine(FileSystem& files) {
    return std::make_unique<ReportMaker>(files);
}

}  // namespace kelvor
