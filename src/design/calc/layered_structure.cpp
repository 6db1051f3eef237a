#include "design/calc/layered_structure.h"

#include <array>

#include "platform/real.h"

namespace kelvor {

namespace {

/// The structural number of all layers together.
Real TotalStructuralNumber(const CalcContext& context) {
    return context.store.SQLSum("LDLayerStructNo").value_or(0.0);
}

/// SNi = a m D of one layer; D in inches.
void CalcLayerStructuralNumber(CalcContext& context, std::string_view target, int layer, int /*dim2*/) {
    const Real coefficient = context.Get("LDLayerCoef", layer, 1);
    const Real drainage = context.Get("LDDrainCoef", layer, 1);
    const Real thickness = context.Get("LDLayerThick", layer, 1);
    context.Put(target, layer, 1, coefficient * drainage * thickness);
}

void CalcAdditionalThickness(CalcContext& context, std::string_view target, int layer, int /*dim2*/) {
    const std::optional<Real> thickness = AdditionalThickness(context, layer);
    if (thickness) context.Put(target, layer, 1, *thickness);
}

void CalcStructureSum(CalcContext& context, std::string_view target) {
    context.Put(target, TotalStructuralNumber(context));
}

constexpr std::array kFields = {FieldKey{"SSN", CalcStructureSum}};
constexpr std::array kCells = {CellKeyRoutine{"LDLayerStructNo", CalcLayerStructuralNumber},
                               CellKeyRoutine{"LDAdditThick", CalcAdditionalThickness}};

}  // namespace

std::optional<Real> AdditionalThickness(const CalcContext& context, int layer) {
    const Real remainder = context.Get("SN") - TotalStructuralNumber(context);
    const Real coefficient = context.Get("LDLayerCoef", layer, 1);
    const Real drainage = context.Get("LDDrainCoef", layer, 1);
    if (coefficient == 0.0 || drainage == 0.0) return std::nullopt;
    return remainder / coefficient * drainage;
}

KeyTable LayeredStructureKeys() { return {kFields, kCells}; }

void ClearAdditThick(CalcContext& context, const Dispatch& calculations, int layer) {
    const char* const kName = "LDAdditThick";
    for (int row = 1; context.store.FindCell(kName, row, 1) != nullptr; ++row) {
        if (row != layer) context.Clear(kName, row);
    }
    calculations.CalcCell(context, kName, layer, 1, kName);
}

}  // namespace kelvor
