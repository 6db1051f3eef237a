#include "traffic/calc/vehicle_data.h"

#include <string>

#include "traffic/calc/axle_esal.h"

namespace kelvor {

namespace {

constexpr int kFirstAxle = 51;
constexpr int kLastAxle = 70;
constexpr int kFirstAxleOfSixth = 66;
constexpr int kAxlesOfVehicle = 3;  // of each of the first five

/// The number of a vehicle's last axle, which names its count.
int LastAxleOfVehicle(int axle) {
    if (axle >= kFirstAxleOfSixth) return kLastAxle;
    const int vehicle = (axle - kFirstAxle) / kAxlesOfVehicle;
    return kFirstAxle + kAxlesOfVehicle * (vehicle + 1) - 1;
}

}  // namespace

void VehicleEsal(const ProjectStore& store, Real& flexibleTotal, Real& rigidTotal) {
    flexibleTotal = 0.0;
    rigidTotal = 0.0;
    for (int axle = kFirstAxle; axle <= kLastAxle; ++axle) {
        const std::string number = std::to_string(axle);
        const std::int16_t axleType = WholeCode(store.GetVar("AT" + number));
        const Real load = store.GetVar("AW" + number);
        const Real count = store.GetVar("NA" + std::to_string(LastAxleOfVehicle(axle)));
        const std::int16_t period = WholeCode(store.GetVar("TrPer"));
        Real rigid;
        Real flexible;
        AxleEsal(store, axleType, load, count, period, rigid, flexible);
        rigidTotal += rigid;
        flexibleTotal += flexible;
    }
}

void SumVehiclesRigid(CalcContext& context, std::string_view target) {
    Real flexible;
    Real rigid;
    VehicleEsal(context.store, flexible, rigid);
    context.store.SetVar(target, rigid.value());
}

void SumVehiclesFlexible(CalcContext& context, std::string_view target) {
    Real flexible;
    Real rigid;
    VehicleEsal(context.store, flexible, rigid);
    context.store.SetVar(target, flexible.value());
}

}  // namespace kelvor
