#include "reports/run/report_list.h"

#include "reports/staging/staging_routines.h"

namespace kelvor {

ReportList::ReportList(const ScreenContext& context, const Path& stagingFile)
    : context_(context), database_(stagingFile), stager_(database_, context_.calc) {}

void ReportList::StageGeneral() { StageGeneralInfo(stager_); }

void ReportList::Take(const ReportItem& item, bool takesPart) {
    if (item.flag && !context_.balance.Get(*item.flag)) {
        unbalanced_ += std::string(FindReport(item.report).title) + "\n";
        return;
    }
    const bool hasExistingData = item.stage(stager_, item.screen);
    const bool isPart = takesPart && item.part != nullptr && !hasExistingData;
    reports_.push_back({&FindReport(isPart ? item.part : item.report), item.screen});
    if (item.second != nullptr) reports_.push_back({&FindReport(item.second), item.screen});
}

void ReportList::TakeTicked(const Form& hub) {
    for (const ReportItem& item : ReportItems()) {
        if (hub.Get(item.box).value) Take(item, true);
    }
}

void ReportList::Drop(const std::function<bool(const ReportName&)>& isUnwanted) {
    std::erase_if(reports_, [&](const ListedReport& listed) { return isUnwanted(*listed.report); });
}

StagedTables ReportList::Finish() {
    StagedTables tables = database_.ReadAll(context_.catalogue, context_.units);
    database_.Commit();
    return tables;
}

}  // namespace kelvor
