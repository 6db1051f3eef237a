#pragma once

#include <cmath>

namespace kelvor::test {

/// What a test on flexible pavement measured, in inches, pounds, mils and psi.
struct FlexibleRow {
    double radius, load, subgradeModulus, correction, thickness, deflection;
};

/// Out of the compiler's sight, so that a power is always the library's.
[[gnu::noinline]] inline double LibraryPower(double base, double exponent) {
    return std::pow(base, exponent);
}

/// The deflection of the two-layer equation, mils, in plain doubles and in the order in which it is printed.
inline double ReferenceDeflection(const FlexibleRow& row, double Ep) {
    const double MR = row.subgradeModulus / row.correction;
    const double ratio = row.thickness / row.radius;
    const double A = 1.5 * row.load / (3.1415926 * row.radius);
    const double root = LibraryPower(Ep / MR, 1.0 / 3.0);
    const double B = 1.0 / (MR * LibraryPower(1.0 + LibraryPower(ratio * root, 2.0), 0.5));
    const double E = (1.0 - 1.0 / LibraryPower(1.0 + LibraryPower(ratio, 2.0), 0.5)) / Ep;
    return 1000.0 * (E + B) * A;
}

struct Bisection {
    double Ep;
    int passes;  // after which the search ended
};

/// The search for the modulus that gives the measured deflection: halves of the rest towards the end that is
/// still open, 25 at most.
inline Bisection ReferenceBisection(const FlexibleRow& row) {
    double bounds[] = {5000.0, 2000000.0};
    double Ep = 1000000.0;
    int pass = 0;
    while (pass < 25) {
        const double difference = ReferenceDeflection(row, Ep) - row.deflection;
        if (std::fabs(difference) < 0.01) break;
        const bool tooStiff = difference < 0.0;
        bounds[tooStiff ? 1 : 0] = Ep;
        Ep = tooStiff ? Ep - (Ep - bounds[0]) / 2.0 : Ep + (bounds[1] - Ep) / 2.0;
        ++pass;
    }
    return {Ep, pass};
}

}  // namespace kelvor::test
