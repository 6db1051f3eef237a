#include "shell/calculations.h"

#include <array>

#include "design/calc/layered_structure.h"
#include "design/calc/new_pavement_equations.h"
#include "lcc/calc/economic_factors.h"
#include "ndt/calc/ndt_keys.h"
#include "rehab/calc/overlay_equations.h"
#include "rehab/calc/rehab_keys.h"
#include "traffic/calc/traffic_keys.h"

namespace kelvor {

namespace {

constexpr std::array<std::string_view, 7> kAwaitedFieldKeys = {
    "ItemTotal2", "ItemTotal3", "ItemTotal4", "PrWorthTotal3", "PrWorthTotal4", "PWCostM", "MaintItemCost",
};

constexpr std::array<std::string_view, 4> kAwaitedCellKeys = {"InitialItemCost", "InitialItem",
                                                              "RehabItemCost", "PWCostR"};

}  // namespace

Dispatch JoinCalculations() {
    return Dispatch({NewPavementEquations(), LayeredStructureKeys(), OverlayEquations(), RehabKeys(),
                     NdtKeys(), TrafficKeys(), EconomicFactorKeys()});
}

std::span<const std::string_view> AwaitedFieldKeys() { return kAwaitedFieldKeys; }
std::span<const std::string_view> AwaitedCellKeys() { return kAwaitedCellKeys; }

}  // namespace kelvor
