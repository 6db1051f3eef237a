#include <algorithm>
#include <array>
#include <stdexcept>
#include <string>
#include <string_view>

#include "platform/text.h"
#include "reports/run/report_items.h"
#include "shell/hub/hub_table.h"

namespace kelvor {

namespace {

constexpr std::array<std::string_view, 4> kCategories = {report_category::kDesign, report_category::kOverlays,
                                                         report_category::kTraffic, report_category::kCost};

[[noreturn]] void Fail(const HubRow& row, const std::string& name, const std::string& slip) {
    throw std::logic_error("option " + std::string(row.option) + " of the hub: " + name + " " + slip);
}

/// A report item is found by its box, and must report the screen of the row.
bool IsReported(const HubRow& row) {
    const auto items = ReportItems();
    return std::any_of(items.begin(), items.end(), [&](const ReportItem& item) {
        return EqualNoCase(item.box, row.report.box) && EqualNoCase(item.screen, row.screen);
    });
}

void CheckReport(const HubRow& row) {
    const std::string_view category = row.report.category;
    if (category.empty()) return;
    if (std::find(kCategories.begin(), kCategories.end(), category) == kCategories.end()) {
        Fail(row, row.report.category, "is no category of reports");
    }
    if (!IsReported(row)) Fail(row, row.report.box, "is a box without a report");
}

void CheckPair(const HubRow& row, const HubRow& other) {
    if (EqualNoCase(row.option, other.option)) Fail(row, row.option, "stands twice");
    const std::string_view category = row.report.category;
    if (category.empty() || category != other.report.category) return;
    if (row.report.place == other.report.place) Fail(row, row.report.box, "has the place of another box");
}

}  // namespace

void CheckHubRow(const HubRow& row, const FormRegistry& forms, const Catalogue& catalogue) {
    if (!forms.IsDeclared(row.screen)) Fail(row, row.screen, "is no screen");
    for (const char* variable : row.needs.variables) {
        if (catalogue.FindVariable(variable) == nullptr) Fail(row, variable, "is no variable");
    }
    CheckReport(row);
}

void CheckHubTable(const FormRegistry& forms, const Catalogue& catalogue) {
    for (const char* page : kCostPages) {
        if (catalogue.FindScreen(page) == nullptr) {
            throw std::logic_error("hub: " + std::string(page) + " is no screen");
        }
    }
    const std::span<const HubRow> rows = HubTable();
    for (std::size_t i = 0; i < rows.size(); ++i) {
        CheckHubRow(rows[i], forms, catalogue);
        for (std::size_t j = 0; j < i; ++j) CheckPair(rows[i], rows[j]);
    }
}

}  // namespace kelvor
