#include "traffic/calc/traffic_factors.h"

#include "traffic/calc/axle_esal.h"
#include "traffic/calc/traffic_codes.h"

namespace kelvor {

namespace {

Real TrucksOfDay(const CalcContext& context) {
    const ProjectStore& store = context.store;
    if (context.values.trafficInTrucks) return store.GetVar("TrInADTT");
    return store.GetVar("TrInADT") * (store.GetVar("TrInPerTruck") / Real(100.0));
}

/// A rate that is not 0 grows, however small: where its hundredth part is 0 the calculation is abandoned.
Real YearsOfTraffic(const ProjectStore& store) {
    const Real life = store.GetVar("Life");
    const Real rate = store.GetVar("GrowthRate");
    return rate == 0.0 ? life : GrownYears(life, rate / Real(100.0));
}

/// `factor` names the ESALs of one truck.
void CalcFactorEsal(CalcContext& context, std::string_view target, std::string_view factor) {
    const Real trucks = TrucksOfDay(context);
    const Real esal = trucks * context.Get(factor) * kDaysOfYear * YearsOfTraffic(context.store);
    context.Put(target, DesignLanePart(context.store, esal));
}

}  // namespace

void CalcFactorEsalFlexible(CalcContext& context, std::string_view target) {
    CalcFactorEsal(context, target, "TrInFESAL");
}

void CalcFactorEsalRigid(CalcContext& context, std::string_view target) {
    CalcFactorEsal(context, target, "TrInRESAL");
}

}  // namespace kelvor
