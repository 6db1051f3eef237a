#pragma once

namespace kelvor {

enum class Paper { A4, Letter };

/// A length and a width in points, 1/72 in.
struct PointSize {
    double width = 0.0;
    double height = 0.0;
};

/// The sheet that a report is set on, upright.
struct PageSetup {
    Paper paper = Paper::Letter;
    double marginPoints = 54.0;  // on all four sides: 0.75 in

    [[nodiscard]] PointSize Sheet() const {
        constexpr double kPointsPerMillimetre = 72.0 / 25.4;
        if (paper == Paper::Letter) return {8.5 * 72.0, 11.0 * 72.0};
        return {210.0 * kPointsPerMillimetre, 297.0 * kPointsPerMillimetre};
    }
    [[nodiscard]] double TextWidth() const { return Sheet().width - 2.0 * marginPoints; }
};

}  // namespace kelvor
