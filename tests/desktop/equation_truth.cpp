#include "desktop/equation_truth.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <initializer_list>

#include "unit/design/reference_equations.h"

namespace kelvor::test {

namespace {

constexpr double kPermitted = 0.002;
constexpr double kDoubt = 1e-5;

const char* const kMissing = "Missing: ";
const char* const kHolds = "In balance: ";
const char* const kDoesNotHold = "Not in balance: ";

struct Row {
    double reliability;
    double zr;
};

// 1993 AASHTO Guide, Part I, Table 4.1.
constexpr std::array kDeviates = {
    Row{50, -0.000}, Row{60, -0.253}, Row{70, -0.524}, Row{75, -0.674}, Row{80, -0.841},    Row{85, -1.037},
    Row{90, -1.282}, Row{91, -1.340}, Row{92, -1.405}, Row{93, -1.476}, Row{94, -1.555},    Row{95, -1.645},
    Row{96, -1.751}, Row{97, -1.881}, Row{98, -2.054}, Row{99, -2.327}, Row{99.99, -3.750},
};

/// On the straight line between two rows, or beyond the first or the last of them.
double Deviate(double reliability) {
    std::size_t upper = 1;
    while (upper + 1 < kDeviates.size() && kDeviates[upper].reliability <= reliability) ++upper;
    const Row& low = kDeviates[upper - 1];
    const Row& high = kDeviates[upper];
    return low.zr +
           (reliability - low.reliability) * (high.zr - low.zr) / (high.reliability - low.reliability);
}

bool AnyMissing(const NumberOf& number, std::initializer_list<const char*> names) {
    return std::any_of(names.begin(), names.end(), [&](const char* name) { return number(name) == 0.0; });
}

std::string Compare(double given, double stored) {
    if (!std::isfinite(given)) return kDoesNotHold;
    const double difference = std::fabs(given - stored) / std::fabs(stored);
    if (std::fabs(difference - kPermitted) < kDoubt) return "";
    return difference > kPermitted ? kDoesNotHold : kHolds;
}

std::string TruthOfFlexible(const NumberOf& number) {
    if (AnyMissing(number, {"SN", "FLEXE18", "FLEXREL", "FLEXDEV", "RM", "FLEXPO", "FLEXPT"}))
        return kMissing;
    if (number("FLEXREL") >= 100.0 || number("FLEXPO") <= number("FLEXPT")) return kDoesNotHold;
    const FlexibleCase design{Deviate(number("FLEXREL")), number("FLEXDEV"), number("RM"), number("FLEXPO"),
                              number("FLEXPT")};
    return Compare(design.Traffic(number("SN")), number("FLEXE18"));
}

std::string TruthOfRigid(const NumberOf& number) {
    if (AnyMissing(number,
                   {"DEPTH", "RIGE18", "RIGREL", "RIGDEV", "MR", "EC", "J", "K", "C", "RIGPO", "RIGPT"}))
        return kMissing;
    if (number("RIGREL") >= 100.0 || number("RIGPO") <= number("RIGPT")) return kDoesNotHold;
    const double power = std::pow(number("DEPTH"), 0.75);
    if (power <= 1.132 || power <= 18.42 / std::pow(number("EC") / number("K"), 0.25)) return kDoesNotHold;
    const RigidCase design{Deviate(number("RIGREL")),
                           number("RIGDEV"),
                           number("MR"),
                           number("EC"),
                           number("J"),
                           number("K"),
                           number("C"),
                           number("RIGPO"),
                           number("RIGPT")};
    return Compare(design.Traffic(number("DEPTH")), number("RIGE18"));
}

}  // namespace

std::string TruthOfCheck(const std::string& screen, const NumberOf& number) {
    return screen == "DeF" ? TruthOfFlexible(number) : TruthOfRigid(number);
}

}  // namespace kelvor::test
