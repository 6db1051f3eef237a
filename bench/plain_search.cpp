#include "plain_search.h"

#include <benchmark/benchmark.h>

#include <array>
#include <cmath>
#include <cstddef>
#include <numbers>

namespace kelvor::bench {

namespace {

constexpr double kLn10 = std::numbers::ln10;

/// Far more than any search takes.
constexpr int kMostPasses = 1000;

struct Row {
    double reliability;
    double zr;
};

constexpr std::array kTable = {
    Row{50, 0},      Row{60, -0.253}, Row{70, -0.524}, Row{75, -0.674}, Row{80, -0.841},   Row{85, -1.037},
    Row{90, -1.282}, Row{91, -1.34},  Row{92, -1.405}, Row{93, -1.476}, Row{94, -1.555},   Row{95, -1.645},
    Row{96, -1.751}, Row{97, -1.881}, Row{98, -2.054}, Row{99, -2.327}, Row{99.99, -3.75},
};

double LookUpZR(double reliability) {
    std::size_t row = 1;
    while (row + 1 < kTable.size() && !(reliability < kTable[row].reliability)) ++row;
    const Row& lower = kTable[row - 1];
    const Row& upper = kTable[row];
    const double fraction = (reliability - lower.reliability) / (upper.reliability - lower.reliability);
    return (upper.zr - lower.zr) * fraction + lower.zr;
}

bool AnyMissing(const PlainTerms& t) {
    return t.W18 == 0.0 || t.reliability == 0.0 || t.S0 == 0.0 || t.MR == 0.0 || t.P0 == 0.0 || t.Pt == 0.0;
}

/// What every solve computes of the equation before its case; the search needs none of it.
void ComputeTerms(const PlainTerms& t, double zr) {
    double ZS = zr * t.S0;
    double SNTerm = 9.36 * (std::log(t.SN + 1.0) / kLn10);
    double ServTerm = std::log((t.P0 - t.Pt) / 2.7) / kLn10;
    double ServDiv = 1.0 / (0.4 + 1094.0 / std::pow(t.SN + 1.0, 5.19));
    double MRTerm = 2.32 * (std::log(t.MR) / kLn10);
    benchmark::DoNotOptimize(ZS);
    benchmark::DoNotOptimize(SNTerm);
    benchmark::DoNotOptimize(ServTerm);
    benchmark::DoNotOptimize(ServDiv);
    benchmark::DoNotOptimize(MRTerm);
}

double Traffic(const PlainTerms& t, double zr, double SN) {
    const double a = std::log(SN + 1.0);
    const double b = std::log(t.MR);
    const double t1 = 9.36 * a / kLn10;
    const double t2 = std::log((t.P0 - t.Pt) / 2.7) / (1094.0 / std::pow(SN + 1.0, 5.19) + 0.4) / kLn10;
    const double t3 = b / kLn10 * 2.32;
    const double w18 = std::pow(10.0, zr * t.S0 + t1 - 0.2 + t2 + t3 - 8.07);
    return w18 <= 100.0 ? w18 : std::floor(w18 / 100.0 + 0.49) * 100.0;
}

bool Meets(double target, double traffic) { return std::fabs(target - traffic) < target / 1000.0; }

double Search(const PlainTerms& t, double zr) {
    const double target = t.W18;
    double low = 0.01;
    double high = 30.0;
    double lowTraffic = Traffic(t, zr, low);
    double highTraffic = Traffic(t, zr, high);
    for (int pass = 0; pass < kMostPasses; ++pass) {
        const double middle = (high + low) / 2.0;
        const double middleTraffic = Traffic(t, zr, middle);
        if (target < lowTraffic) {
            low = low / 2.0;
            lowTraffic = Traffic(t, zr, low);
        } else if (target > highTraffic) {
            high = high + 1.0;
            highTraffic = Traffic(t, zr, high);
        } else if (target > lowTraffic && target <= middleTraffic) {
            if (Meets(target, lowTraffic)) return low;
            if (Meets(target, middleTraffic)) return middle;
            high = middle;
            highTraffic = middleTraffic;
        } else if (target > middleTraffic && target <= highTraffic) {
            if (Meets(target, middleTraffic)) return middle;
            if (Meets(target, highTraffic)) return high;
            low = middle;
            lowTraffic = middleTraffic;
        }
    }
    return 0.0;
}

}  // namespace

double SearchStructuralNumber(const PlainTerms& terms) {
    const double zr = LookUpZR(terms.reliability);
    if (AnyMissing(terms)) return 0.0;
    ComputeTerms(terms, zr);
    return Search(terms, zr);
}

}  // namespace kelvor::bench
