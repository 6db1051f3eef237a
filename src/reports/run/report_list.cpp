#include "reports/run/report_list.h"

#include "reports/staging/staging_routines.h"

namespace kelvor {

ReportList::ReportList(const ScreenContext& context, const Path& stagingFile)
    : context_(context), database_(stagingFile), stager_(database_, context_.calc) {}

bool ReportList::IsAlwaysWanted(const ReportName& /*report*/) { return true; }

void ReportList::StageGeneral() { StageGeneralInfo(stager_); }

void ReportList::Take(const ReportItem& item, bool takesPart, const Wish& isWanted) {
    if (item.flag && !context_.balance.Get(*item.flag)) {
        unbalanced_ += std::string(FindReport(item.report).title) + "\n";
        return;
    }
    std::vector<const ReportName*> names = {&FindReport(item.report)};
    if (item.second != nullptr) names.push_back(&FindReport(item.second));
    // Which of its two layouts a report has is known once it is staged.
    const bool stagesFirst = takesPart && item.part != nullptr;
    if (stagesFirst && !item.stage(stager_, item.screen)) names = {&FindReport(item.part)};
    std::erase_if(names, [&](const ReportName* name) { return !isWanted(*name); });
    if (names.empty()) return;
    if (!stagesFirst) item.stage(stager_, item.screen);
    for (const ReportName* name : names) reports_.push_back({name, item.screen});
}

void ReportList::TakeTicked(const Form& hub, const Wish& isWanted) {
    for (const ReportItem& item : ReportItems()) {
        if (hub.Get(item.box).value) Take(item, true, isWanted);
    }
}

StagedTables ReportList::Finish() {
    StagedTables tables = database_.ReadAll(context_.catalogue, context_.units);
    database_.Commit();
    return tables;
}

}  // namespace kelvor
