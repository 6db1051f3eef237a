#include "plain_deflections.h"

#include <cmath>

namespace kelvor::bench {

namespace {

double Deflection(const PlainTest& test, double MR, double Ep) {
    const double ratio = test.thickness / test.plateRadius;
    const double A = 1.5 * test.load / (3.1415926 * test.plateRadius);
    const double B = 1.0 / (MR * std::pow(1.0 + std::pow(ratio * std::pow(Ep / MR, 1.0 / 3.0), 2.0), 0.5));
    const double E = (1.0 - 1.0 / std::pow(1.0 + std::pow(ratio, 2.0), 0.5)) / Ep;
    return 1000.0 * (E + B) * A;
}

}  // namespace

PlainModuli BackcalculatePlain(const PlainTest& test) {
    const double subgrade = test.load * 0.24 * test.correction / (test.dr / 1000.0 * test.distance);
    double Ep = 1'000'000.0;
    double low = 5'000.0;
    double high = 2'000'000.0;
    for (int step = 0; step < 25; ++step) {
        const double deflection = Deflection(test, subgrade / test.correction, Ep);
        if (std::fabs(deflection - test.d0) < 0.01) break;
        if (deflection < test.d0) {
            high = Ep;
            Ep = Ep - (Ep - low) / 2.0;
        } else {
            low = Ep;
            Ep = Ep + (high - Ep) / 2.0;
        }
    }
    return {subgrade, Ep};
}

}  // namespace kelvor::bench
