#include "shell/calculations.h"

#include <array>

#include "design/calc/layered_structure.h"
#include "design/calc/new_pavement_equations.h"
#include "lcc/calc/economic_factors.h"
#include "rehab/calc/overlay_equations.h"
#include "rehab/calc/rehab_keys.h"
#include "traffic/calc/traffic_keys.h"

namespace kelvor {

namespace {

constexpr std::array<std::string_view, 15> kAwaitedFieldKeys = {
    "AVGNDTRM",   "AVGNDTEFFEP",   "AVGBACKL",      "AVGSTATK",   "AVGBACKLC",
    "AVGSTATKC",  "AVGNDTEC",      "AVGNDTE",       "ItemTotal2", "ItemTotal3",
    "ItemTotal4", "PrWorthTotal3", "PrWorthTotal4", "PWCostM",    "MaintItemCost",
};

constexpr std::array<std::string_view, 16> kAwaitedCellKeys = {
    "InitialItemCost", "InitialItem", "RehabItemCost", "PWCostR", "NDTRM", "NDTEFFEP", "AREA",
    "BACKL",           "DYNK",        "STATK",         "NDTE",    "AREAC", "BACKLC",   "DYNKC",
    "STATKC",          "NDTEC",
};

}  // namespace

Dispatch JoinCalculations() {
    return Dispatch({NewPavementEquations(), LayeredStructureKeys(), OverlayEquations(), RehabKeys(),
                     TrafficKeys(), EconomicFactorKeys()});
}

std::span<const std::string_view> AwaitedFieldKeys() { return kAwaitedFieldKeys; }
std::span<const std::string_view> AwaitedCellKeys() { return kAwaitedCellKeys; }

}  // namespace kelvor
