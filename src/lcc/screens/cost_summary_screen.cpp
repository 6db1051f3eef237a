#include "lcc/screens/cost_summary_screen.h"

#include <algorithm>
#include <array>
#include <string>

#include "calc/calc_messages.h"
#include "calc/ignore_faults.h"
#include "forms/form.h"
#include "forms/screen_context.h"
#include "lcc/calc/cash_flow.h"
#include "lcc/calc/cost_summary.h"
#include "lcc/calc/cost_verdict.h"
#include "lcc/calc/pavements.h"
#include "lcc/screens/pavement_colours.h"
#include "platform/translation.h"

namespace kelvor {

namespace {

constexpr const char* kVerdict = "VERDICT";
constexpr const char* kCashFlow = "CASHFLOW";
constexpr double kVerdictLetters = 80.0;
constexpr int kVerdictLines = 5;

struct CostLine {
    const char* name;     // of its labels, without the number of the column
    const char* caption;  // empty: it is worked out and does not show
    Real PavementCosts::*cost;
    int difference;  // the number of its difference; 0: none
};

constexpr std::array kLines = {
    CostLine{"InitialCost", "Initial Costs", &PavementCosts::initial, 1},
    CostLine{"RehabCost", "Maintenance and Rehabilitation Costs", &PavementCosts::rehabilitation, 3},
    CostLine{"TodaysCost", "Total Expenditures", &PavementCosts::todays, 4},
    CostLine{"InflatedCost", "", &PavementCosts::inflated, 0},
    CostLine{"DiscountCost", "Present Worth", &PavementCosts::discounted, 6},
    CostLine{"EUAC", "Annual Cost", &PavementCosts::euac, 7},
};

std::string Numbered(const char* name, int number) { return name + std::to_string(number); }
std::string DifferenceName(const CostLine& line) { return Numbered("CostDifference", line.difference); }

/// A step that has no value is told of, and the others go on.
void TellFault(Dialogs& dialogs, const ArithmeticFault& fault) {
    constexpr int kOverflow = 6;
    constexpr int kDivisionByZero = 11;
    const bool divides = std::string_view(fault.what()) == "division by zero";
    ShowError(dialogs, "ComputeCostSummary", divides ? kDivisionByZero : kOverflow,
              divides ? "Division by zero" : "Overflow");
}

void ShowCosts(Form& form, const CostSummary& summary) {
    for (const CostLine& line : kLines) {
        for (std::size_t i = 0; i < kPavements.size(); ++i) {
            form.SetText(Numbered(line.name, kPavements[i]), FormatWhole(summary.pavements[i].*line.cost));
        }
        if (line.difference != 0) {
            form.SetText(DifferenceName(line), FormatWhole(summary.difference.*line.cost));
        }
    }
}

/// The present worth that each pavement has cost by the end of each year; a line that no double holds is left
/// out.
std::vector<ChartRow> CashFlowRows(const CalcContext& context) {
    std::array<std::vector<Real>, 2> lines;
    for (std::size_t i = 0; i < kPavements.size(); ++i) {
        IgnoreFaults([&] {
            lines.at(i) =
                CumulatedPresentWorth(ReadCashFlow(context, kPavements[i]), context.Get("DiscountRate"));
        });
    }
    std::vector<ChartRow> rows(std::max(lines[0].size(), lines[1].size()));
    for (std::size_t year = 0; year < rows.size(); ++year) {
        rows[year].label = std::to_string(year);
        for (const std::vector<Real>& line : lines) {
            rows[year].cells.push_back(year < line.size() ? std::optional(line[year].value()) : std::nullopt);
        }
    }
    return rows;
}

void Loaded(ScreenEvent& event) {
    ScreenContext& context = event.context;
    ComputeCostSummary(context.calc, context.costSummary,
                       [&](const ArithmeticFault& fault) { TellFault(context.calc.dialogs, fault); });
    for (const char* name : {"InflatedCost1", "InflatedCost2"}) event.form.Get(name).visible = false;
    ShowCosts(event.form, context.costSummary);
    event.form.SetText(kVerdict, CostVerdict(context.calc));
    event.form.Get(kCashFlow).chart->rows = CashFlowRows(context.calc);
}

LayoutElement CostTable() {
    std::vector<MatrixCell> cells = {
        At(0, 0, Caption("Label1", "Analysis Method")), At(0, 1, Caption("Label2", "Pavement A")),
        At(0, 2, Caption("Label3", "Pavement B")), At(0, 3, Caption("Label4", "Difference A- B"))};
    int row = 1;
    for (const CostLine& line : kLines) {
        if (*line.caption != '\0') cells.push_back(At(row, 0, Caption(Numbered("Row", row), line.caption)));
        for (const int pavement : kPavements) {
            cells.push_back(At(row, pavement, Caption(Numbered(line.name, pavement), "")));
        }
        if (line.difference != 0) cells.push_back(At(row, 3, Caption(DifferenceName(line), "")));
        ++row;
    }
    return Matrix(std::move(cells));
}

ChartData CashFlowChart() {
    ChartData data;
    data.kind = ChartKind::Line;
    data.title = Translated("Present worth of all costs up to each year");
    data.across.title = "Year";
    data.across.picture = "0";
    data.up.title = Translated("Present worth");
    data.up.picture = "#,##0";
    data.series = {{"Pavement A", kColourOfA}, {"Pavement B", kColourOfB}};
    return data;
}

}  // namespace

FormType CostSummaryForm() {
    FormType type;
    type.name = "LcS";
    type.caption = "Life Cycle Cost Analysis";
    type.layout = Rows({CostTable(), Statement(kVerdict, kVerdictLines, kVerdictLetters),
                        Chart(kCashFlow, CashFlowChart())});
    type.handlers = {{FormEvent::Load, "", HandlerOrder::After, Loaded}};
    return type;
}

}  // namespace kelvor
