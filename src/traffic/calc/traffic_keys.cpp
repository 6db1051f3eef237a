#include "traffic/calc/traffic_keys.h"

#include <array>

#include "traffic/calc/axle_data.h"
#include "traffic/calc/traffic_factors.h"
#include "traffic/calc/vehicle_data.h"

namespace kelvor {

namespace {

constexpr std::array kFields = {
    FieldKey{"TrRE18T", SumRigid},
    FieldKey{"TrFE18T", SumFlexible},
    FieldKey{"TrRE18Tv", SumVehiclesRigid},
    FieldKey{"TrFE18Tv", SumVehiclesFlexible},
    FieldKey{"TrRE18tt", CalcFactorEsalRigid},
    FieldKey{"TrFE18tt", CalcFactorEsalFlexible},
};
constexpr std::array kCells = {CellKeyRoutine{"TrRE18", CalcRowEsalRigid},
                               CellKeyRoutine{"TrFE18", CalcRowEsalFlexible}};

}  // namespace

KeyTable TrafficKeys() { return {kFields, kCells}; }

}  // namespace kelvor
