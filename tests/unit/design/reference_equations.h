#pragma once

#include <cmath>

namespace kelvor::test {

/// The design equations on plain doubles, written after the figures of the 1993 AASHTO Guide and apart
/// from the program's own form of them, without its rounding of the traffic.

struct FlexibleCase {
    double zr, s0, mr, p0, pt;

    [[nodiscard]] double Traffic(double sn) const {
        const double serviceability = std::log10((p0 - pt) / (4.2 - 1.5));
        return std::pow(10.0, zr * s0 + 9.36 * std::log10(sn + 1.0) - 0.20 +
                                  serviceability / (0.40 + 1094.0 / std::pow(sn + 1.0, 5.19)) +
                                  2.32 * std::log10(mr) - 8.07);
    }
};

struct RigidCase {
    double zr, s0, mr, ec, j, k, cd, p0, pt;

    [[nodiscard]] double Traffic(double d) const {
        const double serviceability = std::log10((p0 - pt) / (4.5 - 1.5));
        const double strength = mr * cd * (std::pow(d, 0.75) - 1.132);
        const double stress = 215.63 * j * (std::pow(d, 0.75) - 18.42 / std::pow(ec / k, 0.25));
        return std::pow(10.0, zr * s0 + 7.35 * std::log10(d + 1.0) - 0.06 +
                                  serviceability / (1.0 + 1.624e7 / std::pow(d + 1.0, 8.46)) +
                                  (4.22 - 0.32 * pt) * std::log10(strength / stress));
    }
};

}  // namespace kelvor::test
