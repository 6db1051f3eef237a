#include "lcc/calc/money_over_time.h"

namespace kelvor {

Real WorthOfPayment(Real amount, Real rate, Real years) { return amount * (1.0 / Pow(1.0 + rate, years)); }

Real WorthOfSeries(Real amount, Real rate, Real years) {
    const Real growth = Pow(1.0 + rate, years);
    return amount * (growth - 1.0) / (growth * rate);
}

Real AnnualShare(Real ratePercent, Real years) {
    const Real growth = Pow(1.0 + ratePercent / 100.0, years);
    return (ratePercent * growth / (growth - 1.0)) / 100.0;
}

}  // namespace kelvor
