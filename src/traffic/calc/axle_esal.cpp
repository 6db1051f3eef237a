#include "traffic/calc/axle_esal.h"

#include <cmath>
#include <limits>
#include <string>

#include "traffic/calc/traffic_codes.h"

namespace kelvor {

namespace {

/// Load (18 kips) plus axle type (1) of the standard axle, as the equations add them.
constexpr double kStandardAxle = 19.0;

Real Log10(Real x) { return Log(x) / Ln10; }

/// Standard axles that one axle group is worth on a slab of D inches, with terminal serviceability pt.
Real RigidFactor(Real axleType, Real load, Real D, Real pt) {
    const Real G = Log10((4.5 - pt) * 0.333);
    const Real B18 = 3.63 * Pow(kStandardAxle, 5.2) / Pow(D + 1.0, 8.46) + 1.0;
    const Real Bx = 3.63 * Pow(load + axleType, 5.2) / (Pow(axleType, 3.52) * Pow(D + 1.0, 8.46)) + 1.0;
    const Real E = 4.62 * Log10(kStandardAxle) - 4.62 * Log10(axleType + load) + 3.28 * Log10(axleType) +
                   G / Bx - G / B18;
    return Pow(10.0, -E);
}

/// The same on an asphalt pavement of the structural number SN.
Real FlexibleFactor(Real axleType, Real load, Real SN, Real pt) {
    const Real G = Log10((4.2 - pt) / 2.7);
    const Real B18 = 0.081 * Pow(kStandardAxle, 3.23) / Pow(SN + 1.0, 5.19) + 0.4;
    const Real Bx = 0.081 * Pow(load + axleType, 3.23) / (Pow(axleType, 3.23) * Pow(SN + 1.0, 5.19)) + 0.4;
    const Real E = 4.79 * Log10(kStandardAxle) - 4.79 * Log10(axleType + load) + 4.33 * Log10(axleType) +
                   G / Bx - G / B18;
    return Pow(10.0, -E);
}

/// The growth factor, times how many periods of the count a year has.
Real PeriodsOfLife(const ProjectStore& store, std::int16_t period) {
    const Real life = store.GetVar("Life");
    const Real growth = store.GetVar("GrowthRate") / Real(100.0);
    const Real years = growth == 0.0 ? life : GrownYears(life, growth);
    if (period == kCountedByDay) return years * kDaysOfYear;
    if (period == kCountedByMonth) return years * kMonthsOfYear;
    return years;
}

}  // namespace

Real GrownYears(Real years, Real growth) { return (Pow(1.0 + growth, years) - 1.0) / growth; }

Real DesignLanePart(const ProjectStore& store, Real esal) {
    if (store.GetVar("TRFACTYPE") != kTotalTraffic) return esal;
    const Real direction = store.GetVar("TRWAY") == kTwoWay ? store.GetVar("TRDIRDIS") : 100.0;
    const Real lane = store.GetVar("TRLANDIS");
    return (direction / 100.0 * esal) * (lane / 100.0);
}

void AxleEsal(const ProjectStore& store, std::int16_t axleType, Real load, Real count, std::int16_t period,
              Real& rigidEsal, Real& flexibleEsal) {
    const Real L2 = static_cast<double>(axleType);
    if (L2 * load * count == 0.0) {
        rigidEsal = 0.0;
        flexibleEsal = 0.0;
        return;
    }
    const Real periods = PeriodsOfLife(store, period);
    const Real D = store.GetVar("TrafficDEPTH");
    const Real SN = store.GetVar("TrafficSN");
    const Real pt = store.GetVar("PT");
    if (D != 0.0 && pt != 0.0) rigidEsal = RigidFactor(L2, load, D, pt) * count * periods;
    if (SN != 0.0 && pt != 0.0) flexibleEsal = FlexibleFactor(L2, load, SN, pt) * count * periods;
    rigidEsal = DesignLanePart(store, rigidEsal);
    flexibleEsal = DesignLanePart(store, flexibleEsal);
}

std::int16_t AxleTypeCode(const ProjectStore& store, std::int16_t row) {
    const CellValue* cell = store.FindCell("AxleType", row, 1);
    if (cell == nullptr) throw ProgramStop("no cell " + CellText("AxleType", row, 1));
    std::int16_t code = 0;
    for (const char* word : kAxleTypeWords) {
        ++code;
        if (cell->text == word) return code;
    }
    return 0;
}

std::int16_t WholeCode(Real value) {
    using Limits = std::numeric_limits<std::int16_t>;
    const double whole = std::nearbyint(value.value());
    if (whole < Limits::min() || whole > Limits::max()) RaiseArithmeticFault("16-bit number");
    return static_cast<std::int16_t>(whole);
}

}  // namespace kelvor
