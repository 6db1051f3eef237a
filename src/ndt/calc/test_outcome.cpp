#include "ndt/calc/test_outcome.h"

#include "calc/ignore_faults.h"
#include "ndt/calc/flexible_backcalculation.h"
#include "ndt/calc/slab_basin.h"
#include "ndt/calc/two_layer_deflection.h"

namespace kelvor {

namespace {

constexpr double kNearBound = 0.001;  // of the bound

std::optional<double> BoundAt(Real modulus) {
    for (const double bound : {kLeastPavementModulus, kLargestPavementModulus}) {
        if (Abs(modulus - bound) <= kNearBound * bound) return bound;
    }
    return std::nullopt;
}

/// A pavement whose deflection has no value is not one that was found.
bool GivesMeasuredDeflection(const CalcContext& context, Real modulus, int row, int dim2) {
    bool gives = false;
    IgnoreFaults([&] {
        const TwoLayerPavement pavement = ReadTwoLayerPavement(context, row, dim2);
        const Real misfit = CenterDeflection(pavement, modulus) - context.Get("D0F", row, dim2);
        gives = Abs(misfit) < kCloseDeflection;
    });
    return gives;
}

}  // namespace

std::optional<SearchOutcome> OutcomeOfSearch(const CalcContext& context, int row, int dim2) {
    const std::optional<Real> modulus = context.Find("NDTEFFEP", row, dim2);
    if (!modulus) return std::nullopt;
    return SearchOutcome{GivesMeasuredDeflection(context, *modulus, row, dim2), BoundAt(*modulus)};
}

bool IsAreaWithoutSolution(const CalcContext& context, std::string_view variable, int row, int dim2) {
    const std::optional<Real> area = context.Find(variable, row, dim2);
    return area && (*area <= 0.0 || *area >= kEvenBasinArea);
}

}  // namespace kelvor
