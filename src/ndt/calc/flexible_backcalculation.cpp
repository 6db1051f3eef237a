#include "ndt/calc/flexible_backcalculation.h"

namespace kelvor {

namespace {

constexpr double kMilsPerInch = 1000.0;
constexpr int kMostSteps = 25;
constexpr double kFirstModulus = 1'000'000.0;  // psi

/// Halves the range until the pavement's deflection is the measured one. A fault leaves the last modulus.
void SearchPavementModulus(const TwoLayerPavement& pavement, Real measured, Real& Ep) {
    Real low = kLeastPavementModulus;
    Real high = kLargestPavementModulus;
    for (int step = 0; step < kMostSteps; ++step) {
        const Real deflection = CenterDeflection(pavement, Ep);
        if (Abs(deflection - measured) < kCloseDeflection) return;
        if (deflection < measured) {  // too stiff
            high = Ep;
            Ep = Ep - (Ep - low) / 2.0;
        } else {
            low = Ep;
            Ep = Ep + (high - Ep) / 2.0;
        }
    }
}

}  // namespace

void CalcSubgradeModulus(CalcContext& context, std::string_view target, int row, int dim2) {
    const Real outerDeflection = context.Get("DR", row, dim2);
    const Real load = context.Get("NDTLOADF", row, dim2);
    const Real centerDeflection = context.Get("D0F", row, dim2);
    const Real distance = context.Get("NDTR");
    if (outerDeflection == 0.0 || distance == 0.0 || load == 0.0 || centerDeflection == 0.0) {
        context.Clear(target, row, dim2);
        return;
    }
    const Real correction = context.Get("NDTRMC");
    context.Put(target, row, dim2,
                (load * 0.24 * correction) / ((outerDeflection / kMilsPerInch) * distance));
}

TwoLayerPavement ReadTwoLayerPavement(const CalcContext& context, int row, int dim2) {
    return {context.Get("Radius"), context.Get("NDTLOADF", row, dim2),
            context.Get("NDTRM", row, dim2) / context.Get("NDTRMC"), context.Get("NDTEFFD")};
}

void CalcEffectivePavementModulus(CalcContext& context, std::string_view target, int row, int dim2) {
    if (context.Get("Radius") == 0.0 || context.Get("NDTLOADF", row, dim2) == 0.0 ||
        context.Get("NDTRM", row, dim2) == 0.0 || context.Get("NDTRMC") == 0.0) {
        context.Clear(target, row, dim2);
        return;
    }
    Real Ep = kFirstModulus;
    try {
        SearchPavementModulus(ReadTwoLayerPavement(context, row, dim2), context.Get("D0F", row, dim2), Ep);
    } catch (const ArithmeticFault&) {
        context.Put(target, row, dim2, Ep);
        throw;
    }
    context.Put(target, row, dim2, Ep);
}

}  // namespace kelvor
