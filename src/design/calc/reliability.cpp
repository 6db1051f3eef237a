#include "design/calc/reliability.h"

#include <array>
#include <cstddef>

#include "calc/calc_messages.h"

namespace kelvor {

namespace {

struct Row {
    double reliability;  // per cent
    double zr;
};

constexpr std::array kTable = {
    Row{50, 0},      Row{60, -0.253}, Row{70, -0.524}, Row{75, -0.674}, Row{80, -0.841},   Row{85, -1.037},
    Row{90, -1.282}, Row{91, -1.34},  Row{92, -1.405}, Row{93, -1.476}, Row{94, -1.555},   Row{95, -1.645},
    Row{96, -1.751}, Row{97, -1.881}, Row{98, -2.054}, Row{99, -2.327}, Row{99.99, -3.75},
};

/// The row that ends the interval 75 to 80.
constexpr std::size_t kRow80 = 4;

/// The last interval serves every reliability below this.
constexpr double kFullReliability = 100.0;

/// The interval that ends at a row of the table.
ReliabilityInterval IntervalEndingAt(std::size_t row) {
    return {kTable[row - 1].reliability, kTable[row].reliability, kTable[row - 1].zr, kTable[row].zr, {}};
}

/// The bound below which a reliability lies in the interval that ends at a row.
double UpperBound(std::size_t row) {
    return row + 1 == kTable.size() ? kFullReliability : kTable[row].reliability;
}

/// What a deviate must exceed to lie in the interval that ends at a row. The sign at 80 is positive,
/// unlike all others, so no deviate ever lies in the interval 75 to 80.
double DeviateBound(std::size_t row) { return row == kRow80 ? -kTable[row].zr : kTable[row].zr; }

/// The number of the first row, from 1, that satisfies a test; the size of the table if none does.
template <typename Test>
std::size_t FirstRow(Test test) {
    std::size_t row = 1;
    while (row < kTable.size() && !test(row)) ++row;
    return row;
}

/// The deviate on the straight line of an interval, which notes the fraction used.
Real DeviateWithin(ReliabilityInterval& interval, Real reliability) {
    interval.fraction =
        (reliability - interval.lowerReliability) / (interval.upperReliability - interval.lowerReliability);
    return (interval.upperZR - interval.lowerZR) * interval.fraction + interval.lowerZR;
}

}  // namespace

std::optional<Real> DeviateOf(Real reliability) {
    if (reliability >= kFullReliability) return std::nullopt;
    ReliabilityInterval interval =
        IntervalEndingAt(FirstRow([&](std::size_t row) { return reliability < UpperBound(row); }));
    return DeviateWithin(interval, reliability);
}

void ReliabilityToZR(ReliabilityInterval& interval, Dialogs& dialogs, Real reliability, Real& zr) {
    try {
        const std::size_t row = FirstRow([&](std::size_t i) { return reliability < UpperBound(i); });
        if (row < kTable.size()) interval = IntervalEndingAt(row);
        zr = DeviateWithin(interval, reliability);
    } catch (const ArithmeticFault&) {
        ReportMathOverflow(dialogs);
    }
}

int ZRToReliability(Dialogs& dialogs, Real& reliability, Real zr) {
    if (zr > 0.0) {
        ReportOutsideBounds(dialogs);
        return -1;
    }
    try {
        const std::size_t row = FirstRow([&](std::size_t i) { return zr > DeviateBound(i); });
        const ReliabilityInterval interval =
            row < kTable.size() ? IntervalEndingAt(row) : ReliabilityInterval{};
        const Real fraction = (zr - interval.lowerZR) / (interval.upperZR - interval.lowerZR);
        reliability =
            (interval.upperReliability - interval.lowerReliability) * fraction + interval.lowerReliability;
        return 0;
    } catch (const ArithmeticFault&) {
        ReportMathOverflow(dialogs);
        return -1;
    }
}

}  // namespace kelvor
