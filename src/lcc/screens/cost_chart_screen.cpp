#include "lcc/screens/cost_chart_screen.h"

#include <algorithm>
#include <array>
#include <string>

#include "forms/form.h"
#include "forms/screen_context.h"
#include "lcc/calc/cost_chart_values.h"
#include "lcc/screens/pavement_colours.h"
#include "platform/number_picture.h"
#include "platform/number_text.h"
#include "platform/translation.h"

namespace kelvor {

namespace {

constexpr const char* kBars = "Bars";
constexpr double kFullHeight = 3270.0;  // of the taller bar
constexpr int kScaleLabels = 8;
constexpr const char* kScalePicture = "###,###,###";

struct Category {
    const char* name;
    const char* title;
};

/// By the number in Dim2, from 1.
constexpr std::array kCategories = {
    Category{"InitialCost", "Initial Costs"},
    Category{"MaintCost", "Maintenance Costs"},
    Category{"RehabCost", "Rehabilitation Costs"},
    Category{"PW", "Present Worth"},
    Category{"EUAC", "EUAC"},
};

std::string ScaleLabel(int number) { return "HValues(" + std::to_string(number) + ")"; }

const Category& CategoryOf(const Form& form) {
    const auto last = static_cast<int>(kCategories.size());
    return kCategories.at(static_cast<std::size_t>(std::clamp(form.dim2().value_or(1), 1, last)) - 1);
}

/// The bars stand on the same base, so that a bar is as high as its part of the larger value.
void ShowHeights(Form& form, const std::array<double, 2>& costs, double larger) {
    const std::array<const char*, 2> bars = {"CostA", "CostB"};
    for (std::size_t i = 0; i < bars.size(); ++i) {
        const double height = larger > 0.0 ? std::max(kFullHeight * costs.at(i) / larger, 0.0) : 0.0;
        Control& bar = form.Get(bars.at(i));
        bar.height = true;
        bar.text = NumberToText(height);
    }
}

void ShowScale(Form& form, double larger) {
    for (int i = 1; i <= kScaleLabels; ++i) {
        const double step = larger / kScaleLabels;
        form.SetText(ScaleLabel(i), larger > 0.0 ? FormatNumber(i * step, kScalePicture) : "");
    }
}

void DrawBars(ChartData& chart, const std::array<double, 2>& costs, double larger) {
    chart.rows.clear();
    if (larger <= 0.0) return;
    chart.up.greatest = larger;
    chart.up.step = larger / kScaleLabels;
    chart.rows = {{"", {costs[0], costs[1]}}};
}

void Activated(ScreenEvent& event) {
    Form& form = event.form;
    const Category& category = CategoryOf(form);
    const auto costs = CostSummaryValues(event.context.calc, category.name).value_or(std::array{0.0, 0.0});
    const double larger = std::max(costs[0], costs[1]);
    form.SetText("Title", category.title);
    ShowHeights(form, costs, larger);
    ShowScale(form, larger);
    form.Get(kBars).chart->title = category.title;
    DrawBars(*form.Get(kBars).chart, costs, larger);
}

/// The drawing shows the title, the bars and their scale; these hold their texts and numbers.
void HideNumbers(ScreenEvent& event) {
    for (const char* name : {"Title", "CostA", "CostB", "SSCostA", "SSCostB"})
        event.form.Get(name).visible = false;
    for (int i = 1; i <= kScaleLabels; ++i) event.form.Get(ScaleLabel(i)).visible = false;
}

ChartData TwoBars() {
    ChartData data;
    data.kind = ChartKind::GroupedBars;
    data.showsValues = true;
    data.up.picture = kScalePicture;
    data.series = {{"Cost A", kColourOfA}, {"Cost B", kColourOfB}};
    return data;
}

}  // namespace

FormType CostChartForm() {
    FormType type;
    type.name = "CostChart";
    type.caption = Translated("Cost Comparison");
    std::vector<LayoutElement> elements = {Caption("Title", ""),         Chart(kBars, TwoBars()),
                                           Caption("CostA", ""),         Caption("CostB", ""),
                                           Caption("SSCostA", "Cost A"), Caption("SSCostB", "Cost B")};
    for (int i = 1; i <= kScaleLabels; ++i) elements.push_back(Caption(ScaleLabel(i), ""));
    type.layout = Rows(std::move(elements));
    type.handlers = {{FormEvent::Load, "", HandlerOrder::After, HideNumbers},
                     {FormEvent::Activate, "", HandlerOrder::After, Activated}};
    return type;
}

}  // namespace kelvor
