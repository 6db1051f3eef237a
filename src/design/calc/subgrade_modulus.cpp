#include "design/calc/subgrade_modulus.h"

#include <algorithm>

#include "platform/real.h"

namespace kelvor {

namespace {

double Governing(double cbr, double rValue, double byCbr, double byRValue) {
    if (cbr >= 1.0 && rValue == 0.0) return byCbr;
    if (cbr == 0.0 && rValue >= 1.0) return byRValue;
    if (cbr >= 1.0 && rValue >= 1.0) return std::min(byCbr, byRValue);
    return 0.0;
}

}  // namespace

SubgradeModulus ComputeSubgradeModulus(double cbr, double rValue) {
    const double byCbr = (1941.488 * Pow(cbr, 0.6844709)).value();
    double byRValue = 0.0;
    if (rValue != 0.0) byRValue = (2165.935 * Exp(Real(0.0343507) * rValue)).value();
    return {byCbr, byRValue, Governing(cbr, rValue, byCbr, byRValue)};
}

}  // namespace kelvor
