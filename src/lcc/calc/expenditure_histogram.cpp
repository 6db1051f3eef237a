#include "lcc/calc/expenditure_histogram.h"

#include <algorithm>
#include <string>

#include "calc/ignore_faults.h"
#include "lcc/calc/pavements.h"
#include "platform/number_text.h"

namespace kelvor {

namespace {

constexpr int kLastYear = 100;

using Amounts = std::array<Real, kLastYear + 1>;

/// The whole years of a pavement's period.
std::size_t YearsOf(const CalcContext& context, int pavement) {
    const double years = Floor(AnalysisPeriod(context, pavement)).value();
    return static_cast<std::size_t>(std::clamp(years, 0.0, static_cast<double>(kLastYear)));
}

/// The cost of the first row of annual maintenance as its grid shows it; 0 if there is none.
Real AnnualMaintenance(const CalcContext& context, int pavement) {
    for (int row = 1; row <= kLastCostRow; ++row) {
        if (context.units.GetDisplayValue("RehabItem", row, pavement) != "Annual Maintenance") continue;
        return ParseNumber(context.units.GetDisplayValue("RehabItemCost", row, pavement));
    }
    return 0.0;
}

/// The year that a row shows; nothing for a text, a blank and a year out of range.
std::optional<std::size_t> YearOfRow(const CalcContext& context, int row, int pavement) {
    const std::string shown = context.units.GetDisplayValue("RehabYear", row, pavement);
    if (!IsNumeric(shown)) return std::nullopt;
    const double year = ParseNumber(shown);
    if (year < 0.0 || year > kLastYear) return std::nullopt;
    return static_cast<std::size_t>(year);
}

Amounts AmountsOfYears(const CalcContext& context, int pavement, const StepReport& report) {
    Amounts amounts{};
    for (int row = 1; row <= kLastCostRow; ++row) {
        const auto year = YearOfRow(context, row, pavement);
        if (!year) continue;
        report("Calculating annual cost for " + std::to_string(*year) + " year.");
        IgnoreFaults([&] { amounts[*year] += context.Get("RehabItemCost", row, pavement); });
    }
    const Real maintenance = AnnualMaintenance(context, pavement);
    for (std::size_t year = 1; year <= YearsOf(context, pavement); ++year) {
        report("Building histogram (costs for " + std::to_string(year) + " year).");
        IgnoreFaults([&] { amounts[year] += maintenance; });
    }
    amounts[0] = context.Get("ItemTotal2", 1, pavement);
    return amounts;
}

}  // namespace

std::optional<std::vector<YearOfExpenditure>> BuildHistogram(const CalcContext& context,
                                                             const StepReport& report) {
    if (std::all_of(kPavements.begin(), kPavements.end(),
                    [&](int pavement) { return AnalysisPeriod(context, pavement) == 0.0; })) {
        return std::nullopt;
    }
    std::vector<YearOfExpenditure> histogram;
    for (std::size_t i = 0; i < kPavements.size(); ++i) {
        if (AnalysisPeriod(context, kPavements[i]) == 0.0) continue;
        const Amounts amounts = AmountsOfYears(context, kPavements[i], report);
        const std::size_t years = YearsOf(context, kPavements[i]);
        while (histogram.size() <= years) histogram.push_back({static_cast<int>(histogram.size()), {}});
        for (std::size_t year = 0; year <= years; ++year) histogram[year].amounts[i] = amounts[year];
    }
    return histogram;
}

}  // namespace kelvor
