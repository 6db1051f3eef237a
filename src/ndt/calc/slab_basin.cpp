#include "ndt/calc/slab_basin.h"

#include "calc/clamp.h"

namespace kelvor {

namespace {

constexpr double kInchesPerMil = 0.001;
constexpr double kPsiPerKsi = 1000.0;
constexpr double kTwoPi = 2.0 * 3.141592;

}  // namespace

Real BasinArea(Real d0, Real d12, Real d24, Real d36) {
    const Real area = 6.0 * (1.0 + 2.0 * d12 / d0 + 2.0 * d24 / d0 + d36 / d0);
    return ClampValue(area, 0.01, 99.99);
}

std::optional<Real> RadiusOfStiffness(Real area) {
    if (area <= 0.0 || area >= kEvenBasinArea) return std::nullopt;
    const Real radius = Pow(Log((kEvenBasinArea - area) / 1812.2791333) / -2.55934, 4.387009);
    return ClampValue(radius, 1.0, 200.0);
}

Real DynamicK(Real load, Real d0, Real stiffnessRadius, Real plateRadius) {
    const Real L = Log(plateRadius / (2.0 * stiffnessRadius));
    const Real S = load / (Pow(stiffnessRadius, 2.0) * (8.0 * kInchesPerMil * d0));
    const Real T = (1.0 / kTwoPi) * (L + 0.05772156649 - 1.25);
    const Real k = (Pow(plateRadius / stiffnessRadius, 2.0) * T + 1.0) * S;
    return ClampValue(k, 10.0, 4000.0);
}

Real StaticK(Real dynamicK) { return ClampValue(dynamicK / 2.0, 10.0, 2000.0); }

Real SlabModulus(Real poisson, Real thickness, Real stiffnessRadius, Real dynamicK) {
    const Real modulus = (1.0 - Pow(poisson, 2.0)) * 12.0 * dynamicK * Pow(stiffnessRadius, 4.0) /
                         Pow(thickness, 3.0) / kPsiPerKsi;
    return ClampValue(modulus, 100.0, 10'000.0);
}

}  // namespace kelvor
