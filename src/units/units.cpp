#include "units/units.h"

#include "platform/number_picture.h"
#include "platform/number_text.h"
#include "platform/real.h"
#include "units/quantities.h"

namespace kelvor {

std::optional<std::string> BlankToNull(std::string_view text) {
    return text.empty() ? std::nullopt : std::optional(std::string(text));
}

std::string BlankToZero(std::string_view text) { return text.empty() ? "0" : std::string(text); }

double Units::UnitFactor(std::string_view englishUnit) const {
    if (!metric_) return 1.0;
    const UnitPair* pair = catalogue_.FindPairByEnglish(englishUnit);
    return pair == nullptr ? 1.0 : pair->factor;
}

std::string Units::UnitLabel(std::string_view variable) const {
    const Variable* row = catalogue_.FindVariable(variable);
    if (row == nullptr) return {};
    const UnitPair* pair = metric_ ? catalogue_.FindPairByEnglish(row->units) : nullptr;
    return pair == nullptr ? row->units : pair->metric;
}

const UnitPair* Units::PairOf(std::string_view variable) const {
    const Variable* row = catalogue_.FindVariable(variable);
    return row == nullptr ? nullptr : catalogue_.FindPairByEnglish(row->units);
}

std::string Units::ActiveUnit(std::string_view unit) const {
    const UnitPair* pair = metric_ ? catalogue_.FindPairByEnglish(unit) : catalogue_.FindPairByMetric(unit);
    if (pair == nullptr) return std::string(unit);
    return metric_ ? pair->metric : pair->english;
}

std::string Units::EnglishUnit(std::string_view unit) const {
    const UnitPair* pair = metric_ ? catalogue_.FindPairByMetric(unit) : nullptr;
    return pair == nullptr ? std::string(unit) : pair->english;
}

Range Units::VariableRange(std::string_view variable) const {
    const Variable* row = catalogue_.FindVariable(variable);
    if (row == nullptr) return {};
    return metric_ ? Range{row->highMetric, row->lowMetric} : Range{row->high, row->low};
}

std::string Units::GetDisplayValue(std::string_view variable, int dim1, int dim2) const {
    const CellValue* cell = store_.FindCell(variable, dim1, dim2);
    const Variable* row = catalogue_.FindVariable(variable);
    if (cell == nullptr || row == nullptr) return {};
    if (!cell->number) return FormatText(cell->text.value_or(""), row->format);
    return DisplayNumber(variable, *cell->number);
}

std::string Units::DisplayNumber(std::string_view variable, double number) const {
    const Variable* row = catalogue_.FindVariable(variable);
    if (row == nullptr) return {};
    try {
        return FormatNumber((Real(number) * UnitFactor(row->units)).value(), row->format);
    } catch (const ArithmeticFault&) {
        return {};
    }
}

std::optional<double> Units::ToEnglish(const Variable* variable, std::optional<double> value) const {
    if (variable == nullptr || variable->IsText() || !value) return std::nullopt;
    try {
        return (Real(*value) / UnitFactor(variable->units)).value();
    } catch (const ArithmeticFault&) {
        return std::nullopt;  // no double holds the value in English units: kept as a text
    }
}

void Units::SetDisplayValue(std::string_view variable, int dim1, int dim2, std::string_view value) {
    const auto number = IsNumeric(value) ? std::optional(ParseNumber(value)) : std::nullopt;
    if (const char* unitVariable = UnitOfQuantity(variable)) {
        StoreQuantity(variable, unitVariable, dim1, dim2, number, value);
        return;
    }
    store_.SetCell(variable, dim1, dim2,
                   {ToEnglish(catalogue_.FindVariable(variable), number), BlankToNull(value)});
}

void Units::SetDisplayNumber(std::string_view variable, int dim1, int dim2, double value) {
    if (const char* unitVariable = UnitOfQuantity(variable)) {
        StoreQuantity(variable, unitVariable, dim1, dim2, value, NumberToText(value));
        return;
    }
    store_.SetCell(variable, dim1, dim2,
                   {ToEnglish(catalogue_.FindVariable(variable), value), NumberToText(value)});
}

}  // namespace kelvor
