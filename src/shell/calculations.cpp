#include "shell/calculations.h"

#include "design/calc/layered_structure.h"
#include "design/calc/new_pavement_equations.h"
#include "lcc/calc/cost_keys.h"
#include "lcc/calc/economic_factors.h"
#include "ndt/calc/ndt_keys.h"
#include "rehab/calc/overlay_equations.h"
#include "rehab/calc/rehab_keys.h"
#include "traffic/calc/traffic_keys.h"

namespace kelvor {

Dispatch JoinCalculations() {
    return Dispatch({NewPavementEquations(), LayeredStructureKeys(), OverlayEquations(), RehabKeys(),
                     NdtKeys(), TrafficKeys(), EconomicFactorKeys(), CostKeys()});
}

}  // namespace kelvor
