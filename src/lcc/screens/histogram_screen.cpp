#include "lcc/screens/histogram_screen.h"

#include <string>

#include "forms/form.h"
#include "forms/form_events.h"
#include "lcc/calc/expenditure_histogram.h"
#include "lcc/screens/pavement_colours.h"
#include "platform/translation.h"

namespace kelvor {

namespace {

constexpr const char* kChart = "Chart1";

ChartRow RowOf(const YearOfExpenditure& year) {
    ChartRow row{std::to_string(year.year), {}};
    for (const std::optional<Real>& amount : year.amounts) {
        row.cells.push_back(amount ? std::optional(amount->value()) : std::nullopt);
    }
    return row;
}

/// What the work on the histogram is at, shown for as long as it lasts.
class Progress {
  public:
    explicit Progress(Dialogs& dialogs) : dialogs_(dialogs) { Tell("Opening Histogram"); }
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;
    ~Progress() { dialogs_.HideWait(); }

    void Tell(const std::string& step) {
        dialogs_.ShowWait({.title = "Calculating Amounts...", .text = step});
    }

  private:
    Dialogs& dialogs_;
};

/// The progress opens with the first step: without a period there is none.
std::optional<std::vector<YearOfExpenditure>> BuildWithProgress(const CalcContext& context) {
    std::optional<Progress> progress;
    return BuildHistogram(context, [&](const std::string& step) {
        if (!progress) progress.emplace(context.dialogs);
        progress->Tell(step);
    });
}

void Loaded(ScreenEvent& event) {
    Dialogs& dialogs = event.context.calc.dialogs;
    ChartData& chart = *event.form.Get(kChart).chart;
    chart.rows.clear();
    const auto histogram = BuildWithProgress(event.context.calc);
    if (!histogram) {
        dialogs.ShowMessage({.text = "No Analysis periods entered."});
        return;
    }
    for (const YearOfExpenditure& year : *histogram) chart.rows.push_back(RowOf(year));
}

void CloseClick(ScreenEvent& event) { FormEvents(event.context).Close(event.form); }

ChartData YearlyBars() {
    ChartData data;
    data.kind = ChartKind::GroupedBars;
    data.title = Translated("Expenditures by year");
    data.showsValues = true;
    data.across.title = "Year";
    data.up.picture = "#,##0";
    data.series = {{"Pavement A", kColourOfA}, {"Pavement B", kColourOfB}};
    return data;
}

}  // namespace

FormType HistogramForm() {
    FormType type;
    type.name = "Histogr";
    type.caption = "Histogram";
    type.layout = Chart(kChart, YearlyBars());
    type.foot = {{"cmdbClose", "&Close", Translated("Close this drawing")}};
    type.handlers = {{FormEvent::Load, "", HandlerOrder::After, Loaded},
                     {FormEvent::Click, "cmdbClose", HandlerOrder::Instead, CloseClick}};
    return type;
}

}  // namespace kelvor
