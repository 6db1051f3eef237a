#pragma once

#include <string_view>

#include "calc/calc_context.h"
#include "platform/real.h"

namespace kelvor {

/// The ESALs of all axles of the six vehicles, over the design life. The axles have the numbers 51 to 70,
/// three for each of the first five vehicles and five for the sixth; every axle counts as often as its
/// vehicle. An axle without a type or a load, or of a vehicle without a count, adds nothing.
void VehicleEsal(const ProjectStore& store, Real& flexibleTotal, Real& rigidTotal);

/// The rigid total of the vehicles, written to `target`.
void SumVehiclesRigid(CalcContext& context, std::string_view target);

/// The flexible one.
void SumVehiclesFlexible(CalcContext& context, std::string_view target);

}  // namespace kelvor
