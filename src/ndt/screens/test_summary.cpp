#include "ndt/screens/test_summary.h"

#include <array>
#include <optional>
#include <string>
#include <utility>

#include "forms/form.h"
#include "forms/form_builder.h"
#include "forms/screen_context.h"
#include "ndt/calc/column_statistics.h"
#include "platform/number_picture.h"

namespace kelvor {

namespace {

constexpr const char* kTestColour = "#1F5FBF";
constexpr const char* kAverageColour = "#C2571A";
constexpr const char* kPerCent = "0.0";
constexpr double kChartLetters = 50.0;
constexpr double kCountLetters = 6.0;
constexpr double kValueLetters = 11.0;

/// A box of the spread: what its name adds to that of the column, and its heading.
struct SpreadBox {
    const char* suffix;
    const char* heading;
    double letters;
};

constexpr std::array kBoxes = {
    SpreadBox{"Count", "Tests", kCountLetters},
    SpreadBox{"Deviation", "Std. Deviation", kValueLetters},
    SpreadBox{"Variation", "Variation, %", kValueLetters},
    SpreadBox{"Percentile15", "15th Percentile", kValueLetters},
    SpreadBox{"Percentile85", "85th Percentile", kValueLetters},
};

enum SummaryColumn { kLabelColumn, kAverageColumn, kUnitColumn, kFirstBoxColumn };

void AddHeadings(std::vector<MatrixCell>& cells) {
    for (std::size_t i = 0; i < kBoxes.size(); ++i) {
        cells.push_back(At(0, kFirstBoxColumn + static_cast<int>(i),
                           Caption(std::string("Head") + kBoxes.at(i).suffix, kBoxes.at(i).heading)));
    }
}

void AddLine(std::vector<MatrixCell>& cells, int line, const ResultColumn& result) {
    cells.push_back(At(line, kLabelColumn, LabelOf(result.average)));
    cells.push_back(At(line, kAverageColumn, BareBox({.variable = result.average})));
    cells.push_back(At(line, kUnitColumn, UnitOf(result.average)));
    for (std::size_t i = 0; i < kBoxes.size(); ++i) {
        const SpreadBox& box = kBoxes.at(i);
        cells.push_back(At(line, kFirstBoxColumn + static_cast<int>(i),
                           BareBox({.label = std::string(box.heading) + " of " + result.column,
                                    .computed = true,
                                    .box = std::string(result.column) + box.suffix,
                                    .letters = box.letters})));
    }
}

/// A column's numbers as they are shown: what is stored times the factor, in its picture.
struct ShownColumn {
    const Variable* variable;
    double factor;
    std::string unit;

    [[nodiscard]] std::string Text(const std::optional<Real>& value) const {
        return value ? FormatNumber(value->value() * factor, variable->format) : std::string();
    }
};

ShownColumn ShownAs(const ScreenContext& context, const char* column) {
    const Variable* variable = context.catalogue.FindVariable(column);
    return {variable, context.units.UnitFactor(variable->units), context.units.UnitLabel(column)};
}

/// The results of a column, a test without one as nothing; up to the last test that has one.
std::vector<std::optional<Real>> ResultsOf(const ScreenContext& context, const Form& form,
                                           const char* column) {
    std::vector<std::optional<Real>> results;
    const int dim2 = form.dim2().value_or(1);
    std::size_t last = 0;
    for (int row = 1; row <= form.FindGrid()->grid->rows; ++row) {
        results.push_back(context.calc.Find(column, row, dim2));
        if (results.back()) last = results.size();
    }
    results.resize(last);
    return results;
}

void ShowSpread(Form& form, const ResultColumn& result, const ShownColumn& shown,
                const std::vector<std::optional<Real>>& results) {
    std::vector<Real> values;
    for (const std::optional<Real>& value : results) {
        if (value) values.push_back(*value);
    }
    const ColumnStatistics spread = DescribeColumn(std::move(values));
    const std::string name = result.column;
    form.SetText(name + "Count", std::to_string(spread.tests));
    form.SetText(name + "Deviation", shown.Text(spread.deviation));
    form.SetText(name + "Variation",
                 spread.variation ? FormatNumber(spread.variation->value(), kPerCent) : std::string());
    form.SetText(name + "Percentile15", shown.Text(spread.percentile15));
    form.SetText(name + "Percentile85", shown.Text(spread.percentile85));
}

ChartData ChartOf(const ScreenContext& context, const ResultColumn& result, const ShownColumn& shown,
                  const std::vector<std::optional<Real>>& results) {
    ChartData chart;
    chart.title = shown.variable->desc;
    chart.across = {.title = "Test", .picture = "0"};
    chart.up = {.title = shown.unit, .picture = shown.factor == 1.0 ? "0" : ""};
    chart.series = {{"Test", kTestColour}, {"Average", kAverageColour}};
    const double average = context.calc.Get(result.average).value() * shown.factor;
    for (std::size_t i = 0; i < results.size(); ++i) {
        const auto value =
            results[i] ? std::optional(results[i]->value() * shown.factor) : std::optional<double>();
        chart.rows.push_back({std::to_string(i + 1), {value, average}});
    }
    return chart;
}

}  // namespace

LayoutElement SpreadOfResults(const std::vector<ResultColumn>& results) {
    std::vector<MatrixCell> cells;
    AddHeadings(cells);
    for (std::size_t i = 0; i < results.size(); ++i) AddLine(cells, static_cast<int>(i) + 1, results[i]);
    return Matrix(std::move(cells));
}

LayoutElement ChartsOfResults(const std::vector<ResultColumn>& results) {
    std::vector<LayoutElement> charts;
    for (const ResultColumn& result : results) {
        if (result.chart != nullptr) charts.push_back(Chart(result.chart, {}));
    }
    return Columns(std::move(charts));
}

void ShowResults(ScreenContext& context, Form& form, const std::vector<ResultColumn>& results) {
    for (const ResultColumn& result : results) {
        const ShownColumn shown = ShownAs(context, result.column);
        const auto values = ResultsOf(context, form, result.column);
        ShowSpread(form, result, shown, values);
        if (result.chart == nullptr) continue;
        Control& chart = form.Get(result.chart);
        chart.letters = kChartLetters;
        chart.chart = ChartOf(context, result, shown, values);
    }
}

}  // namespace kelvor
