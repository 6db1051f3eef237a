#pragma once

#include <cstdint>

#include "platform/real.h"
#include "store/project_store.h"

namespace kelvor {

/// The equivalent 18-kip single axle loads of one kind of axle over the design life, from its type (1 single,
/// 2 tandem, 3 tridem), the load of the whole axle group in kips, how many such axles pass in one period, and
/// the period (1 day, 2 month, 3 year; any other period counts as a year). The parameters of the traffic come
/// from the store: slab thickness and structural number assumed, terminal serviceability, growth, design
/// life, and what of the traffic runs in the design lane.
///
/// Both results are 0 without a type, a load or a count. A result whose thickness or structural number is 0,
/// or whose terminal serviceability is 0, stays as it came in. Raises ArithmeticFault if a number has no
/// finite value, as at a terminal serviceability of 4.5 or above for rigid and 4.2 or above for flexible.
///
/// The equations behind the tables of the 1993 AASHTO Guide, Appendix D (1986 Guide, Volume 2, Appendix MM).
/// The rigid one multiplies by 0.333 where the Guide divides by 3.
void AxleEsal(const ProjectStore& store, std::int16_t axleType, Real load, Real count, std::int16_t period,
              Real& rigidEsal, Real& flexibleEsal);

/// The type of the axles in a row of the axle data: 1 for "Single", 2 for "Tandem", 3 for "Tridem", letter
/// case included, and 0 for any other text. Stops the program if there is no such row.
std::int16_t AxleTypeCode(const ProjectStore& store, std::int16_t row);

/// How many times the traffic of the first year passes in so many years that each bring more of it, by a
/// fraction of the year before that is not 0.
Real GrownYears(Real years, Real growth);

/// The part of an ESAL count that the design lane carries. All of it if the traffic was counted there.
Real DesignLanePart(const ProjectStore& store, Real esal);

/// A code that is kept as a number, such as an axle type or a period, to the nearest whole number, a half to
/// the even one. A fault if it needs more than 16 bits.
std::int16_t WholeCode(Real value);

}  // namespace kelvor
