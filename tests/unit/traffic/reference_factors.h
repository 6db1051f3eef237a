#pragma once

#include <cmath>

namespace kelvor::test {

/// Load equivalency factors on plain doubles, as products of powers and apart from the program's own form of
/// them. `type` is 1, 2 or 3 for single, tandem and tridem axles, `load` in kips.

/// `third` is what the serviceability loss is multiplied by: a third in the Guide.
inline double ReferenceRigidFactor(int type, double load, double slabInches, double pt, double third) {
    const double loss = std::log10((4.5 - pt) * third);
    const auto beta = [&](double kips, double axles) {
        return 1.0 + 3.63 * std::pow(kips + axles, 5.2) /
                         (std::pow(slabInches + 1.0, 8.46) * std::pow(axles, 3.52));
    };
    return std::pow((load + type) / 19.0, 4.62) / std::pow(type, 3.28) *
           std::pow(10.0, loss * (1.0 / beta(18.0, 1.0) - 1.0 / beta(load, type)));
}

inline double ReferenceFlexibleFactor(int type, double load, double structuralNumber, double pt) {
    const double loss = std::log10((4.2 - pt) / (4.2 - 1.5));
    const auto beta = [&](double kips, double axles) {
        return 0.40 + 0.081 * std::pow((kips + axles) / axles, 3.23) / std::pow(structuralNumber + 1.0, 5.19);
    };
    return std::pow((load + type) / 19.0, 4.79) / std::pow(type, 4.33) *
           std::pow(10.0, loss * (1.0 / beta(18.0, 1.0) - 1.0 / beta(load, type)));
}

}  // namespace kelvor::test
