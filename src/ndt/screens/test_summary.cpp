#include "ndt/screens/test_summary.h"

#include <array>
#include <optional>
#include <set>
#include <string>
#include <utility>

#include "forms/form.h"
#include "forms/screen_context.h"
#include "ndt/calc/column_statistics.h"
#include "ndt/screens/left_out_tests.h"
#include "platform/number_picture.h"
#include "platform/translation.h"

namespace kelvor {

namespace {

constexpr const char* kTestColour = "#2F7FD6";
constexpr const char* kAverageColour = "#C2571A";
constexpr const char* kLeftOutColour = "#808080";
constexpr const char* kPerCent = "0.0";
constexpr double kChartLetters = 30.0;
constexpr double kValueLetters = 9.0;

/// A line of the spread: what the names of its boxes add to that of the column, and its heading.
struct SpreadLine {
    const char* suffix;
    const char* heading;
};

constexpr std::array kLines = {
    SpreadLine{"Count", ToTranslate("Tests Counted")},
    SpreadLine{"Mean", ToTranslate("Their Mean")},
    SpreadLine{"Deviation", ToTranslate("Std. Deviation")},
    SpreadLine{"Variation", ToTranslate("Variation, %")},
    SpreadLine{"Percentile15", ToTranslate("15th Percentile")},
    SpreadLine{"Percentile85", ToTranslate("85th Percentile")},
};

/// The rows of the spread, from above; its first column has their headings.
enum SpreadRow { kHeadingRow, kUnitRow, kAverageRow, kFirstLine };

void AddHeadings(std::vector<MatrixCell>& cells) {
    cells.push_back(At(kAverageRow, 0, Caption("HeadAverage", Translated("Average"))));
    for (std::size_t i = 0; i < kLines.size(); ++i) {
        cells.push_back(
            At(kFirstLine + static_cast<int>(i), 0,
               Caption(std::string("Head") + kLines.at(i).suffix, Translated(kLines.at(i).heading))));
    }
}

void AddColumn(std::vector<MatrixCell>& cells, int column, const ResultColumn& result) {
    const std::string name = result.column;
    cells.push_back(At(kHeadingRow, column, Caption("Head" + name, Translated(result.heading))));
    cells.push_back(At(kAverageRow, column,
                       BareBox({.variable = result.average, .plain = true, .letters = kValueLetters})));
    cells.push_back(At(kUnitRow, column, UnitOf(result.average)));
    for (std::size_t i = 0; i < kLines.size(); ++i) {
        const SpreadLine& line = kLines.at(i);
        cells.push_back(At(kFirstLine + static_cast<int>(i), column,
                           BareBox({.label = Filled(Translated("%1 of %2"), {Translated(line.heading), name}),
                                    .computed = true,
                                    .plain = true,
                                    .box = name + line.suffix,
                                    .letters = kValueLetters})));
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
    const std::set<int> leftOut = LeftOutTests(form);
    std::vector<Real> values;
    for (std::size_t i = 0; i < results.size(); ++i) {
        if (results[i] && !leftOut.contains(static_cast<int>(i) + 1)) values.push_back(*results[i]);
    }
    const ColumnStatistics spread = DescribeColumn(std::move(values));
    const std::string name = result.column;
    form.SetText(name + "Count", std::to_string(spread.tests));
    form.SetText(name + "Mean", shown.Text(spread.mean));
    form.SetText(name + "Deviation", shown.Text(spread.deviation));
    form.SetText(name + "Variation",
                 spread.variation ? FormatNumber(spread.variation->value(), kPerCent) : std::string());
    form.SetText(name + "Percentile15", shown.Text(spread.percentile15));
    form.SetText(name + "Percentile85", shown.Text(spread.percentile85));
}

/// A test that is left out of the spread stands apart from the others, as a hollow point.
ChartRow RowOf(std::size_t test, std::optional<double> value, double average, const std::set<int>& leftOut) {
    ChartRow row{std::to_string(test), {value, average}};
    if (leftOut.empty()) return row;
    const bool isLeftOut = leftOut.contains(static_cast<int>(test));
    row.cells.push_back(isLeftOut ? value : std::nullopt);
    if (isLeftOut) row.cells.front().reset();
    return row;
}

ChartData ChartOf(const ScreenContext& context, const Form& form, const ResultColumn& result,
                  const ShownColumn& shown, const std::vector<std::optional<Real>>& results) {
    ChartData chart;
    chart.title = Translated(result.heading) + ", " + shown.unit;
    chart.across = {.title = {}, .picture = "0"};
    chart.up = {.title = {}, .picture = shown.factor == 1.0 ? "#,##0" : ""};
    chart.series = {{Translated("Test"), kTestColour}, {Translated("Average"), kAverageColour}};
    const std::set<int> leftOut = LeftOutTests(form);
    if (!leftOut.empty()) {
        chart.series.push_back(
            {.name = Translated("Left out"), .colour = kLeftOutColour, .hollowPoints = true});
    }
    const double average = context.calc.Get(result.average).value() * shown.factor;
    for (std::size_t i = 0; i < results.size(); ++i) {
        const auto value =
            results[i] ? std::optional(results[i]->value() * shown.factor) : std::optional<double>();
        chart.rows.push_back(RowOf(i + 1, value, average, leftOut));
    }
    return chart;
}

}  // namespace

LayoutElement SpreadAndCharts(const std::vector<ResultColumn>& results) {
    std::vector<MatrixCell> cells;
    std::vector<LayoutElement> charts;
    AddHeadings(cells);
    for (std::size_t i = 0; i < results.size(); ++i) {
        AddColumn(cells, static_cast<int>(i) + 1, results[i]);
        if (results[i].chart != nullptr) charts.push_back(Chart(results[i].chart, {}));
    }
    charts.insert(charts.begin(), Figures(std::move(cells)));
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
        chart.chart = ChartOf(context, form, result, shown, values);
    }
}

}  // namespace kelvor
