#include "reports/run/report_texts.h"

#include "forms/equation_lines.h"
#include "platform/translation.h"

namespace kelvor {

namespace {

/// "2001-02-03 04:05": a time stamp to the minute.
constexpr std::size_t kToTheMinute = 16;

}  // namespace

decltype(ReportRequest::texts) ReportTexts(const ScreenContext& context, const std::string& screen,
                                           const std::string& projectFile) {
    const InEnglish english;
    return {{"Check", EquationCheck(context, screen)},
            {"Governs", WhatGoverns(context, screen)},
            {"Project", Path(projectFile).filename().string()},
            {"DateTime", context.calc.clock.Timestamp().substr(0, kToTheMinute) + " UTC"}};
}

}  // namespace kelvor
