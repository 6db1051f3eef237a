#include "ndt/calc/flexible_backcalculation.h"

#include "ndt/calc/two_layer_deflection.h"

namespace kelvor {

namespace {

constexpr double kMilsPerInch = 1000.0;
constexpr int kMostSteps = 25;
constexpr double kCloseEnough = 0.01;  // mils

/// The moduli that are searched, psi.
constexpr double kFirst = 1'000'000.0;
constexpr double kLeast = 5'000.0;
constexpr double kLargest = 2'000'000.0;

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

void CalcEffectivePavementModulus(CalcContext& context, std::string_view target, int row, int dim2) {
    const Real radius = context.Get("Radius");
    const Real load = context.Get("NDTLOADF", row, dim2);
    const Real subgradeModulus = context.Get("NDTRM", row, dim2);
    const Real correction = context.Get("NDTRMC");
    if (radius == 0.0 || load == 0.0 || subgradeModulus == 0.0 || correction == 0.0) {
        context.Clear(target, row, dim2);
        return;
    }
    Real Ep = kFirst;
    Real low = kLeast;
    Real high = kLargest;
    context.Put(target, row, dim2, Ep);
    const TwoLayerPavement pavement = {radius, load, subgradeModulus / correction, context.Get("NDTEFFD")};
    const Real measured = context.Get("D0F", row, dim2);
    for (int step = 0; step < kMostSteps; ++step) {
        const Real deflection = CenterDeflection(pavement, Ep);
        if (Abs(deflection - measured) < kCloseEnough) return;
        if (deflection < measured) {  // too stiff
            high = Ep;
            Ep = Ep - (Ep - low) / 2.0;
        } else {
            low = Ep;
            Ep = Ep + (high - Ep) / 2.0;
        }
        context.Put(target, row, dim2, Ep);
    }
}

}  // namespace kelvor
