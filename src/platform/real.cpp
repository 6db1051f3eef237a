#include "platform/real.h"

namespace kelvor {

namespace {

Real Finite(double result, const char* operation) {
    if (!std::isfinite(result)) RaiseArithmeticFault(operation);
    return result;
}

}  // namespace

void RaiseArithmeticFault(const char* operation) { throw ArithmeticFault(operation); }

Real Log(Real x) {
    if (x.value() <= 0.0) RaiseArithmeticFault("logarithm");
    return Finite(std::log(x.value()), "logarithm");
}

Real Exp(Real x) { return Finite(std::exp(x.value()), "exponential"); }

Real Pow(Real base, Real exponent) { return Finite(std::pow(base.value(), exponent.value()), "power"); }

Real Floor(Real x) { return std::floor(x.value()); }

Real Abs(Real x) { return std::fabs(x.value()); }

}  // namespace kelvor
