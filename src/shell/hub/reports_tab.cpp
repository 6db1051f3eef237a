#include <algorithm>
#include <array>
#include <string_view>
#include <utility>
#include <vector>

#include "forms/form_events.h"
#include "platform/translation.h"
#include "reports/run/report_desk.h"
#include "shell/hub/offer.h"
#include "shell/hub/screen_data.h"
#include "shell/hub/tabs.h"

namespace kelvor {

namespace {

/// What a report's screen must hold before its box can be ticked.
enum class Wants { Nothing, Data, Cells, AxleCells };

struct ReportBox {
    const char* box;
    const char* category;
    const char* screen;
    Wants wants;
    const char* caption;
};

constexpr const char* kDesign = "rbND";
constexpr const char* kOverlays = "rbOV";
constexpr const char* kTraffic = "rbTr";
constexpr const char* kCost = "rbCost";
constexpr const char* kReport = "Command10";
constexpr const char* kExport = "cmdbExport";
constexpr std::array kCategories = {kDesign, kOverlays, kTraffic, kCost};

constexpr std::array kBoxes = {
    ReportBox{"rbNDopF", kDesign, "DeF", Wants::Nothing, "Flexible"},
    ReportBox{"rbNDopR", kDesign, "DeR", Wants::Nothing, "Rigid"},
    ReportBox{"rbOVopBP", kOverlays, "OvBP", Wants::Data, "Bonded Overlay"},
    ReportBox{"rbOVopUP", kOverlays, "OvUP", Wants::Data, "Unbonded Overlay"},
    ReportBox{"rbOVopWT", kOverlays, "OvWT", Wants::Data, "PCC Overlay of Asphalt (Whitetopping)"},
    ReportBox{"rbOVopAFP", kOverlays, "OvAFP", Wants::Data, "AC Overlay of Fractured PCC Pavement"},
    ReportBox{"rbOVopAA", kOverlays, "OvAA", Wants::Data, "AC Overlay of AC Pavement"},
    ReportBox{"rbOVopAP", kOverlays, "OvAP", Wants::Data, "AC Overlay of PCC Pavement"},
    ReportBox{"rbOVopAAP", kOverlays, "OvAAP", Wants::Data, "AC Overlay of AC/PCC Pavement"},
    ReportBox{"rbTRopTrAx", kTraffic, "TrAx", Wants::Cells, "ESAL Determination by Axle Data"},
    ReportBox{"rbTRopTrVe", kTraffic, "TrVe", Wants::AxleCells, "ESAL Determination by Vehicle Type"},
    ReportBox{"rbTRopTrTr", kTraffic, "TrTr", Wants::Data, "ESAL Determination by Traffic Factors"},
};

constexpr const char* kCostScreen = "LcA1";
constexpr std::array kCostScreens = {"LcA1", "LcA1_2", "LcA1_4", "LcA2", "LcA2_2", "LcA2_4"};

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

/// Selects a category. One that was not selected clears the boxes, as a click on it does.
void SelectCategory(Form& hub, Control& category) {
    if (category.value) return;
    for (const char* name : kCategories) hub.Get(name).value = false;
    category.value = true;
    SyncReportOptions(hub, category);
}

void CategoryClick(ScreenEvent& event) { SyncReportOptions(event.form, *event.control); }

void BoxClick(ScreenEvent& event) {
    SyncReportOptions(event.form, *event.control);
    const auto row = std::find_if(kBoxes.begin(), kBoxes.end(),
                                  [&](const ReportBox& report) { return event.control->name == report.box; });
    SelectCategory(event.form, event.form.Get(row->category));
}

/// The costs have no boxes: the category is the report.
void CostClick(ScreenEvent& event) {
    SyncReportOptions(event.form, *event.control);
    for (const char* name : kCategories) {
        if (event.control->name != name) event.form.Get(name).value = false;
    }
}

bool HoldsData(const ScreenContext& context, const ReportBox& report) {
    switch (report.wants) {
        case Wants::Nothing:
            return true;
        case Wants::Data:
            return ScreenHasData(context, report.screen);
        case Wants::Cells:
            return ScreenHasCells(context, report.screen);
        case Wants::AxleCells:
            return ScreenHasAxleCells(context);
    }
    return false;
}

void OfferBox(const ScreenContext& context, Form& hub, const ReportBox& report) {
    const bool declared = IsDeclared(context, report.screen);
    Offer(hub, report.box, declared && HoldsData(context, report), declared ? kNoData : kComesLater);
}

template <typename Offering>
void ForCategory(std::string_view category, Offering offer) {
    for (const ReportBox& report : kBoxes) {
        if (report.category == category) offer(report);
    }
}

void OfferCategory(const ScreenContext& context, Form& hub, std::string_view category) {
    const bool any = std::any_of(kBoxes.begin(), kBoxes.end(), [&](const ReportBox& report) {
        return report.category == category && IsDeclared(context, report.screen);
    });
    Offer(hub, category, any, kComesLater);
}

/// A category above its boxes.
LayoutElement Category(const char* frame, const char* category, const char* caption) {
    std::vector<ButtonItem> boxes;
    ForCategory(category, [&](const ReportBox& report) { boxes.push_back({report.box, report.caption}); });
    std::vector<LayoutElement> rows = {Options({ButtonItem{category, caption}})};
    if (!boxes.empty()) rows.push_back(Checks(std::move(boxes)));
    return Section(frame, "", std::move(rows));
}

void Report(ScreenEvent& event) { event.context.reports.ReportTicked(event.context, event.form); }

void Export(ScreenEvent& event) { event.context.reports.Export(event.context, event.form); }

std::vector<Handler> ReportHandlers() {
    std::vector<Handler> handlers = {{FormEvent::Click, kCost, HandlerOrder::Instead, CostClick},
                                     {FormEvent::Click, kReport, HandlerOrder::Instead, Report},
                                     {FormEvent::Click, kExport, HandlerOrder::Instead, Export}};
    for (const char* category : {kDesign, kOverlays, kTraffic}) {
        handlers.push_back({FormEvent::Click, category, HandlerOrder::Instead, CategoryClick});
    }
    for (const ReportBox& report : kBoxes) {
        handlers.push_back({FormEvent::Click, report.box, HandlerOrder::Instead, BoxClick});
    }
    return handlers;
}

}  // namespace

HubPage ReportsTab() {
    const LayoutElement design = Category("FrameRepND", kDesign, " New Design");
    const LayoutElement overlays = Category("FrameRepOV", kOverlays, "Overlays");
    const LayoutElement traffic = Category("FrameRepTr", kTraffic, "Traffic");
    const LayoutElement costs = Category("FrameRepCost", kCost, "Cost");
    return {Page("Reports", {Columns({Rows({design, overlays}), Rows({traffic, costs})}),
                             Buttons({{kReport, "&Report"}, {kExport, "&Export"}})}),
            ReportHandlers()};
}

void OfferOverlayReports(const ScreenContext& context, Form& hub) {
    ForCategory(kOverlays, [&](const ReportBox& report) { OfferBox(context, hub, report); });
}

void OfferTrafficReports(const ScreenContext& context, Form& hub) {
    const bool filled = TrafficInputsFilled(context);
    ForCategory(kTraffic, [&](const ReportBox& report) {
        Offer(hub, report.box, filled && HoldsData(context, report), filled ? kNoData : kInputsMissing);
    });
}

void OfferTrafficReportsByInputs(const ScreenContext& context, Form& hub) {
    const bool filled = TrafficInputsFilled(context);
    ForCategory(kTraffic, [&](const ReportBox& report) { Offer(hub, report.box, filled, kInputsMissing); });
}

void OfferCostReport(const ScreenContext& context, Form& hub) {
    const bool declared = IsDeclared(context, kCostScreen);
    const bool any = std::any_of(kCostScreens.begin(), kCostScreens.end(),
                                 [&](const char* screen) { return ScreenHasCells(context, screen); });
    Offer(hub, kCost, declared && any, declared ? kNoCosts : kComesLater);
}

void OfferReports(const ScreenContext& context, Form& hub) {
    ForCategory(kDesign, [&](const ReportBox& report) { OfferBox(context, hub, report); });
    OfferOverlayReports(context, hub);
    OfferTrafficReports(context, hub);
    OfferCostReport(context, hub);
    for (const char* category : {kDesign, kOverlays, kTraffic}) OfferCategory(context, hub, category);
}

}  // namespace kelvor
