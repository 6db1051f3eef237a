#include "units/quantities.h"

#include "platform/number_picture.h"
#include "platform/number_text.h"
#include "platform/real.h"
#include "platform/text.h"
#include "units/units.h"

namespace kelvor {

const char* UnitOfQuantity(std::string_view variable) {
    if (EqualNoCase(variable, "InitialQuantity")) return "InitialUnit";
    if (EqualNoCase(variable, "RehabQuantity")) return "RehabUnit";
    return nullptr;
}

CellValue Units::QuantityCell(double quantity, std::string text, std::string_view unit) const {
    if (!metric_) return {quantity, std::move(text)};
    const Real english = Real(quantity) / UnitFactor(EnglishUnit(unit));
    return {quantity, NumberToText(english.value())};
}

/// A text that is no number cannot be divided: in English units it stands beside the number that was there,
/// in metric ones nothing changes.
void Units::StoreQuantityText(std::string_view variable, int dim1, int dim2, std::string_view text) {
    const CellValue* cell = store_.FindCell(variable, dim1, dim2);
    if (bMetric() || cell == nullptr) return;
    store_.SetCell(variable, dim1, dim2, {cell->number, std::string(text)});
}

void Units::StoreQuantity(std::string_view variable, std::string_view unitVariable, int dim1, int dim2,
                          std::optional<double> quantity, std::string_view text) {
    if (text.empty()) {
        store_.SetCell(variable, dim1, dim2, {});
        return;
    }
    const CellValue* unit = store_.FindCell(unitVariable, dim1, dim2);
    if (unit == nullptr) return;
    if (!quantity) return StoreQuantityText(variable, dim1, dim2, text);
    try {
        store_.SetCell(variable, dim1, dim2,
                       QuantityCell(*quantity, std::string(text), unit->text.value_or("")));
    } catch (
        const ArithmeticFault&) {  // NOLINT(bugprone-empty-catch): no double holds it, it stays as it was
    }
}

std::string Units::GetQuantityDisplay(std::string_view variable, int dim1, int dim2) const {
    const char* unitVariable = UnitOfQuantity(variable);
    const CellValue* cell = store_.FindCell(variable, dim1, dim2);
    const CellValue* unit = unitVariable == nullptr ? nullptr : store_.FindCell(unitVariable, dim1, dim2);
    const Variable* row = catalogue_.FindVariable(variable);
    if (cell == nullptr || !cell->number || unit == nullptr || row == nullptr) {
        return GetDisplayValue(variable, dim1, dim2);
    }
    try {
        const Real shown = Real(*cell->number) * UnitFactor(unit->text.value_or(""));
        return FormatNumber(shown.value(), row->format);
    } catch (const ArithmeticFault&) {
        return {};  // no double holds the quantity in this unit
    }
}

}  // namespace kelvor
