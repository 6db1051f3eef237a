#include "forms/field_hint.h"

#include <cmath>

#include "forms/form_builder.h"
#include "platform/number_picture.h"
#include "platform/number_text.h"
#include "platform/translation.h"

namespace kelvor {

namespace {

/// A limit in the field's picture, or in full if the picture would change it, its thousands set apart where
/// the picture does so.
std::string LimitText(double limit, const std::string& picture) {
    std::string text = FormatNumber(limit, picture);
    if (IsNumeric(text) && ParseNumber(text) == limit) return text;
    text = NumberToText(limit);
    if (picture.find(',') == std::string::npos || text.find_first_of("eE") != std::string::npos) return text;
    const std::size_t point = text.find('.');
    const std::string fraction = point == std::string::npos ? "" : text.substr(point);
    return FormatNumber(std::trunc(limit), "#,##0") + fraction;
}

std::string RangeText(const Range& range, const std::string& picture) {
    const auto text = [&](double limit) { return LimitText(limit, picture); };
    if (range.low && range.high) return Filled(Translated("%1 to %2"), {text(*range.low), text(*range.high)});
    if (range.low) return Filled(Translated("%1 or more"), {text(*range.low)});
    return Filled(Translated("at most %1"), {text(*range.high)});
}

std::string HintOf(const ScreenContext& context, const std::string& name, bool computed) {
    const Variable* variable = context.catalogue.FindVariable(name);
    if (variable == nullptr) return {};
    if (computed) return variable->desc + ": " + Translated("computed");
    const Range range = context.units.VariableRange(name);
    if (!range.low && !range.high) return variable->desc;
    const std::string unit = context.units.UnitLabel(name);
    return variable->desc + ": " + RangeText(range, variable->format) +
           (IsNoUnit(unit) ? std::string() : " " + unit);
}

}  // namespace

std::string FieldHint(const ScreenContext& context, const Control& field) {
    if (!field.coded) return HintOf(context, field.tag, field.locked);
    const Variable* variable = context.catalogue.FindVariable(field.tag);
    std::string hint = variable == nullptr ? std::string() : variable->desc;
    for (const std::string& item : field.items) hint += (&item == &field.items.front() ? ": " : ", ") + item;
    return hint;
}

std::string ColumnHint(const ScreenContext& context, const GridColumn& column) {
    std::string hint = HintOf(context, column.variable, column.locked);
    if (!column.list.empty()) hint += ", " + Translated("from the list");
    return column.alsoSets.empty() ? hint : hint + "; " + column.alsoSets;
}

}  // namespace kelvor
