#include "ndt/calc/two_layer_deflection.h"

namespace kelvor {

Real CenterDeflection(const TwoLayerPavement& pavement, Real effectiveModulus) {
    const Real a = pavement.plateRadius;
    const Real P = pavement.load;
    const Real MR = pavement.subgradeModulus;
    const Real D = pavement.thickness;
    const Real Ep = effectiveModulus;
    const Real A = 1.5 * P / (3.1415926 * a);
    const Real B = 1.0 / (MR * Pow(1.0 + Pow((D / a) * Pow(Ep / MR, 1.0 / 3.0), 2.0), 0.5));
    const Real E = (1.0 - 1.0 / Pow(1.0 + Pow(D / a, 2.0), 0.5)) / Ep;
    return 1000.0 * (E + B) * A;
}

}  // namespace kelvor
