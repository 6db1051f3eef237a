#include "design/calc/composite_k.h"

#include "calc/ignore_faults.h"
#include "platform/real.h"

namespace kelvor {

namespace {

constexpr double kPsiPerPci = 19.4;           // roadbed modulus over k, without a subbase
constexpr double kMpaPerMpaPerMetre = 0.477;  // in MPa and MPa/m; not 19.4 converted, which is 0.493
constexpr double kInchesPerFoot = 12.0;

Real WithSubbase(const SubgradeLayers& layers) {
    const Real s = Log(layers.subbaseThickness);
    const Real g = Log(layers.roadbedModulus);
    const Real b = Log(layers.subbaseModulus);
    return Exp(-2.807 + 0.1253 * Pow(s, 2.0) + 1.062 * g + 0.1282 * s * b - 0.4144 * s - 0.0581 * b -
               0.1317 * s * g);
}

Real WithRigidFoundation(const SubgradeLayers& layers, Real k) {
    const Real d = Log(kInchesPerFoot * Real(layers.depthToFoundation));
    const Real g = Log(layers.roadbedModulus);
    const Real c = Log(k);
    return Exp(0.071 * d * g + 5.303 + 1.366 * c - 0.9187 * d - 0.6837 * g);
}

/// The power of k that a loss of support leaves.
double SupportExponent(double lossOfSupport) {
    if (lossOfSupport == 1.0) return 0.795;
    if (lossOfSupport == 2.0) return 0.61;
    if (lossOfSupport == 3.0) return 0.47;
    return 1.0;
}

}  // namespace

std::optional<double> CompositeKEnglish(const SubgradeLayers& layers) {
    if (layers.roadbedModulus == 0.0) return std::nullopt;
    Real k = Real(layers.roadbedModulus) / kPsiPerPci;
    if (layers.subbaseModulus != 0.0 && layers.subbaseThickness != 0.0) {
        IgnoreFaults([&] { k = WithSubbase(layers); });
    }
    if (layers.depthToFoundation != 0.0) {
        IgnoreFaults([&] { k = WithRigidFoundation(layers, k); });
    }
    const double exponent = SupportExponent(layers.lossOfSupport);
    if (exponent != 1.0) {
        IgnoreFaults([&] { k = Pow(k, exponent); });
    }
    return k.value();
}

std::optional<double> CompositeKMetric(const SubgradeLayers& layers) {
    if (layers.roadbedModulus == 0.0) return std::nullopt;
    return (Real(layers.roadbedModulus) / kMpaPerMpaPerMetre).value();
}

}  // namespace kelvor
