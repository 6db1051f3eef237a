#include "reports/staging/column_rules.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "platform/number_text.h"
#include "platform/text.h"
#include "platform/translation.h"
#include "reports/staging/rating_texts.h"

namespace kelvor {

namespace {

/// What `Location1` holds of a location.
constexpr int kLongestLocation = 255;

/// Codes of traffic.
constexpr double kPerMonth = 2.0;
constexpr double kPerYear = 3.0;
constexpr double kTotalTraffic = 2.0;
constexpr double kTwoWay = 2.0;

StagedValue Shown(const ColumnTask& task) {
    return ShownNumber(task.context, task.source, task.dim1, task.dim2);
}

std::string TextOf(const ColumnTask& task) {
    return task.context.units.GetDisplayValue(task.source, task.dim1, task.dim2);
}

StagedValue ShownText(const ColumnTask& task) { return TextOf(task); }

StagedValue Unit(const ColumnTask& task) { return task.context.units.UnitLabel(task.source); }

StagedValue FixedText(const ColumnTask& task) { return task.source; }

StagedValue FixedNumber(const ColumnTask& task) { return ParseNumber(task.source); }

StagedValue FirstLetters(const ColumnTask& task) {
    const std::string text = TextOf(task);
    std::size_t end = 0;
    for (int letters = 0; letters < kLongestLocation && end < text.size(); ++letters) {
        end = NextCharacter(text, end);
    }
    return text.substr(0, end);
}

double StagedNumber(const ColumnTask& task) {
    const StagedValue value = task.staged(task.source);
    const auto* number = std::get_if<double>(&value);
    return number == nullptr ? 0.0 : *number;
}

StagedValue Durability(const ColumnTask& task) { return DurabilityText(StagedNumber(task)); }

StagedValue Fatigue(const ColumnTask& task) { return FatigueText(StagedNumber(task)); }

StagedValue NameOfAxleType(const ColumnTask& task) {
    const bool isCode = IsNumeric(TextOf(task));
    return isCode ? AxleTypeName(ShownNumber(task.context, task.source)) : "";
}

StagedValue Period(const ColumnTask& task) {
    const Real period = task.context.Get(task.source);
    if (period == kPerMonth) return "Month";
    return period == kPerYear ? "Year" : "Day";
}

bool IsTotalTraffic(const CalcContext& context) { return context.Get("TRFACTYPE") == kTotalTraffic; }
bool IsTwoWay(const CalcContext& context) { return context.Get("TRWAY") == kTwoWay; }

StagedValue TrafficKind(const ColumnTask& task) {
    if (!IsTotalTraffic(task.context)) return "Design Lane";
    return IsTwoWay(task.context) ? "Total Traffic   2-way" : "Total Traffic   1-way";
}

/// A share of the traffic, in the shortest decimal of what the screen shows.
std::string Percent(const ColumnTask& task) {
    return NumberToText(ShownNumber(task.context, task.source)) + " percent";
}

StagedValue LaneDistribution(const ColumnTask& task) {
    if (!IsTotalTraffic(task.context)) return "";
    return "Design Lane Distribution " + Percent(task);
}

StagedValue DirectionalDistribution(const ColumnTask& task) {
    if (!IsTotalTraffic(task.context) || !IsTwoWay(task.context)) return "";
    return "Directional Distribution    " + Percent(task);
}

/// The same in each row of a pavement.
StagedValue OfPavement(const ColumnTask& task) {
    return task.context.units.GetDisplayValue(task.source, 1, task.dim2);
}

/// The sum of the stored costs, neither rounded nor converted.
StagedValue SumOfPavement(const ColumnTask& task) {
    return task.context.store.SQLSum(task.source, task.dim2).value_or(0.0).value();
}

StagedValue RowNumber(const ColumnTask& task) { return static_cast<double>(task.dim1); }

struct NamedRule {
    std::string_view name;
    ColumnRule number;
    ColumnRule text;
};

constexpr std::array kRules = {
    NamedRule{"Shown", Shown, ShownText},
    NamedRule{"Unit", nullptr, Unit},
    NamedRule{"Fixed", FixedNumber, FixedText},
    NamedRule{"FirstLetters", nullptr, FirstLetters},
    NamedRule{"DurabilityText", nullptr, Durability},
    NamedRule{"FatigueText", nullptr, Fatigue},
    NamedRule{"AxleTypeName", nullptr, NameOfAxleType},
    NamedRule{"Period", nullptr, Period},
    NamedRule{"TrafficKind", nullptr, TrafficKind},
    NamedRule{"LaneDistribution", nullptr, LaneDistribution},
    NamedRule{"DirectionalDistribution", nullptr, DirectionalDistribution},
    NamedRule{"OfPavement", nullptr, OfPavement},
    NamedRule{"SumOfPavement", SumOfPavement, nullptr},
    NamedRule{"RowNumber", RowNumber, nullptr},
};

}  // namespace

ColumnRule FindColumnRule(std::string_view name, bool isText) {
    const auto* found =
        std::find_if(kRules.begin(), kRules.end(), [&](const NamedRule& rule) { return rule.name == name; });
    const ColumnRule rule = found == kRules.end() ? nullptr : isText ? found->text : found->number;
    if (rule == nullptr) throw std::logic_error("no rule " + std::string(name) + " for a staging column");
    return rule;
}

double ShownNumber(const CalcContext& context, const std::string& variable, int dim1, int dim2) {
    const std::string text = BlankToZero(context.units.GetDisplayValue(variable, dim1, dim2));
    if (!IsNumeric(text)) throw StagingFault(Filled(Translated("%1 is no number: %2"), {variable, text}));
    return ParseNumber(text);
}

}  // namespace kelvor
