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

PlainSlab BackcalculatePlain(const PlainSlabTest& test) {
    double d0 = test.d0;
    if (test.asphalt > 0.0) {
        d0 -= std::pow(test.asphalt / test.asphaltModulus, 1.0798) * 121500.6 - 0.0328;
    }
    PlainSlab slab{};
    slab.area = 6.0 * (1.0 + 2.0 * test.d12 / d0 + 2.0 * test.d24 / d0 + test.d36 / d0);
    slab.radius = std::pow(std::log((36.0 - slab.area) / 1812.2791333) / -2.55934, 4.387009);
    const double l = slab.radius;
    const double S = test.load / (l * l * (8.0 * 0.001 * d0));
    const double T = 1.0 / (2.0 * 3.141592) * (std::log(test.plateRadius / (2.0 * l)) + 0.05772156649 - 1.25);
    slab.dynamicK = (std::pow(test.plateRadius / l, 2.0) * T + 1.0) * S;
    slab.staticK = slab.dynamicK / 2.0;
    slab.modulus = (1.0 - test.poisson * test.poisson) * 12.0 * slab.dynamicK * std::pow(l, 4.0) /
                   std::pow(test.slab, 3.0) / 1000.0;
    return slab;
}

}  // namespace kelvor::bench
