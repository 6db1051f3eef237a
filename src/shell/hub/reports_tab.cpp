#include <algorithm>
#include <array>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "forms/form_events.h"
#include "platform/translation.h"
#include "reports/run/report_desk.h"
#include "shell/hub/offer.h"
#include "shell/hub/screen_choice.h"
#include "shell/hub/screen_data.h"
#include "shell/hub/tabs.h"

namespace kelvor {

namespace {

constexpr const char* kReport = "Command10";
constexpr const char* kExport = "cmdbExport";
constexpr std::array kBoxedCategories = {report_category::kDesign, report_category::kOverlays,
                                         report_category::kTraffic};

/// The costs have no boxes: the category is the report.
constexpr const char* kCost = report_category::kCost;

constexpr const char* kNoData = ToTranslate("its screen holds no values yet");
constexpr const char* kNoCosts = ToTranslate("no cost screen holds values yet");

/// So many letters of a name tell the category. Their case counts: the traffic boxes differ from the traffic
/// category in one letter, so that a click on the category clears them with all others.
constexpr std::size_t kCategoryLetters = 4;

std::string_view CategoryOf(const Control& control) {
    return std::string_view(control.name).substr(0, kCategoryLetters);
}

/// Clears the boxes of every category but that of an option that is set.
void SyncReportOptions(Form& hub, const Control& option) {
    if (!option.value) return;
    for (const auto& control : hub.controls()) {
        if (control->kind != ControlKind::CheckBox) continue;
        if (CategoryOf(*control) != CategoryOf(option)) control->value = false;
    }
}

void ClearCategories(Form& hub) {
    for (const char* name : kBoxedCategories) hub.Get(name).value = false;
    hub.Get(kCost).value = false;
}

/// Selects a category. One that was not selected clears the boxes, as a click on it does.
void SelectCategory(Form& hub, Control& category) {
    if (category.value) return;
    ClearCategories(hub);
    category.value = true;
    SyncReportOptions(hub, category);
}

void CategoryClick(ScreenEvent& event) { SyncReportOptions(event.form, *event.control); }

void BoxClick(ScreenEvent& event) {
    SyncReportOptions(event.form, *event.control);
    const auto rows = HubTable();
    const auto row = std::find_if(rows.begin(), rows.end(), [&](const HubRow& candidate) {
        return event.control->name == candidate.report.box;
    });
    SelectCategory(event.form, event.form.Get(row->report.category));
}

void CostClick(ScreenEvent& event) {
    SyncReportOptions(event.form, *event.control);
    for (const char* name : kBoxedCategories) event.form.Get(name).value = false;
}

bool HoldsData(const ScreenContext& context, const HubRow& row) {
    switch (row.report.wants) {
        case ReportWants::Nothing:
            return true;
        case ReportWants::Data:
            return ScreenHasData(context, row.screen);
        case ReportWants::Cells:
            return ScreenHasCells(context, row.screen);
        case ReportWants::AxleCells:
            return ScreenHasAxleCells(context);
    }
    return false;
}

/// Why a report cannot be ticked; empty if it can.
std::string WhyNot(const ScreenContext& context, const HubRow& row) {
    std::string missing = row.report.needsInputs ? WhatIsMissing(context, row.needs) : "";
    if (!missing.empty()) return missing;
    return HoldsData(context, row) ? "" : kNoData;
}

/// The rows that have a box in a category, in the order of their boxes.
std::vector<const HubRow*> BoxesOf(std::string_view category) {
    std::vector<const HubRow*> boxes;
    for (const HubRow& row : HubTable()) {
        if (row.report.category == category) boxes.push_back(&row);
    }
    std::sort(boxes.begin(), boxes.end(),
              [](const HubRow* a, const HubRow* b) { return a->report.place < b->report.place; });
    return boxes;
}

/// A category above its boxes.
LayoutElement Category(const char* frame, const char* category, const char* caption,
                       const std::string& categoryDoes) {
    std::vector<ButtonItem> boxes;
    for (const HubRow* row : BoxesOf(category)) {
        const std::string does =
            Filled(Translated("Tick it to have the report on this: %1"), {Translated(row->does)});
        boxes.push_back({row->report.box, row->report.caption, does});
    }
    std::vector<LayoutElement> rows = {Options({ButtonItem{category, caption, categoryDoes}})};
    if (!boxes.empty()) rows.push_back(Checks(std::move(boxes)));
    return Section(frame, "", std::move(rows));
}

void Report(ScreenEvent& event) { event.context.reports.ReportTicked(event.context, event.form); }

void Export(ScreenEvent& event) { event.context.reports.Export(event.context, event.form); }

std::vector<Handler> ReportHandlers() {
    std::vector<Handler> handlers = {{FormEvent::Click, kCost, HandlerOrder::Instead, CostClick},
                                     {FormEvent::Click, kReport, HandlerOrder::Instead, Report},
                                     {FormEvent::Click, kExport, HandlerOrder::Instead, Export}};
    for (const char* category : kBoxedCategories) {
        handlers.push_back({FormEvent::Click, category, HandlerOrder::Instead, CategoryClick});
        for (const HubRow* row : BoxesOf(category)) {
            handlers.push_back({FormEvent::Click, row->report.box, HandlerOrder::Instead, BoxClick});
        }
    }
    return handlers;
}

}  // namespace

HubPage ReportsTab() {
    const LayoutElement design = Category("FrameRepND", report_category::kDesign, " New Design",
                                          Translated("Reports of new pavements"));
    const LayoutElement overlays =
        Category("FrameRepOV", report_category::kOverlays, "Overlays", Translated("Reports of overlays"));
    const LayoutElement traffic =
        Category("FrameRepTr", report_category::kTraffic, "Traffic", Translated("Reports of the traffic"));
    const LayoutElement costs =
        Category("FrameRepCost", kCost, "Cost", Translated("The report of both pavements' costs"));
    return {Page("Reports",
                 {Columns({Rows({design, overlays}), Rows({traffic, costs})}),
                  Buttons({{kReport, "&Report", Translated("Show what is ticked, ready for the printer")},
                           {kExport, "&Export",
                            Translated("Write what is ticked as RTF files beside the project")}})}),
            ReportHandlers()};
}

void OfferReportsOf(const ScreenContext& context, Form& hub, std::string_view category) {
    for (const HubRow* row : BoxesOf(category)) {
        const std::string whyNot = WhyNot(context, *row);
        Offer(hub, row->report.box, whyNot.empty(), whyNot);
    }
}

void OfferReportsByInputs(const ScreenContext& context, Form& hub, std::string_view category) {
    for (const HubRow* row : BoxesOf(category)) {
        const std::string missing = WhatIsMissing(context, row->needs);
        Offer(hub, row->report.box, missing.empty(), missing);
    }
}

void OfferCostReport(const ScreenContext& context, Form& hub) {
    const bool any = std::any_of(kCostPages.begin(), kCostPages.end(),
                                 [&](const char* screen) { return ScreenHasAnyCell(context, screen); });
    Offer(hub, kCost, any, kNoCosts);
}

void OfferReports(const ScreenContext& context, Form& hub) {
    for (const char* category : kBoxedCategories) {
        OfferReportsOf(context, hub, category);
    }
    OfferCostReport(context, hub);
}

}  // namespace kelvor
