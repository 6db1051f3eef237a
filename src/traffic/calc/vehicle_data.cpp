#include "traffic/calc/vehicle_data.h"

#include <string>

#include "traffic/calc/axle_esal.h"
#include "traffic/calc/traffic_codes.h"

namespace kelvor {

namespace {

/// Adds the ESALs of an axle, whose vehicles are counted under the number of their last one.
void AddAxle(const ProjectStore& store, int axle, int lastAxle, Real& flexibleTotal, Real& rigidTotal) {
    const std::string number = std::to_string(axle);
    const std::int16_t axleType = WholeCode(store.GetVar("AT" + number));
    const Real load = store.GetVar("AW" + number);
    const Real count = store.GetVar("NA" + std::to_string(lastAxle));
    const std::int16_t period = WholeCode(store.GetVar("TrPer"));
    Real rigid;
    Real flexible;
    AxleEsal(store, axleType, load, count, period, rigid, flexible);
    rigidTotal += rigid;
    flexibleTotal += flexible;
}

}  // namespace

void VehicleEsal(const ProjectStore& store, Real& flexibleTotal, Real& rigidTotal) {
    flexibleTotal = 0.0;
    rigidTotal = 0.0;
    for (const VehicleAxles& axles : kVehicleAxles) {
        for (int axle = axles.first; axle <= axles.last; ++axle) {
            AddAxle(store, axle, axles.last, flexibleTotal, rigidTotal);
        }
    }
}

void SumVehiclesRigid(CalcContext& context, std::string_view target) {
    Real flexible;
    Real rigid;
    VehicleEsal(context.store, flexible, rigid);
    context.Put(target, rigid);
}

void SumVehiclesFlexible(CalcContext& context, std::string_view target) {
    Real flexible;
    Real rigid;
    VehicleEsal(context.store, flexible, rigid);
    context.Put(target, flexible);
}

}  // namespace kelvor
