#include "rehab/calc/asphalt_on_layers.h"

#include "calc/clamp.h"

namespace kelvor {

namespace {

constexpr double kLargest = 30.0;  // of the thicknesses, inches, and of the structural numbers

Real OverlayThickness(Real futureSN, Real effectiveSN, Real coefficient) {
    if (coefficient == 0.0) return 0.0;
    return ClampValue((futureSN - effectiveSN) / coefficient, 0.0, kLargest);
}

Real FutureSN(Real thickness, Real coefficient, Real effectiveSN) {
    return ClampValue(thickness * coefficient + effectiveSN, 0.0, kLargest);
}

}  // namespace

void CalcOverlayOfAsphalt(CalcContext& context, std::string_view target) {
    context.Put(target, OverlayThickness(context.Get("ACACFUTSN"), context.Get("ACACEFFSN"),
                                         context.Get("ACACOLLC")));
}

void CalcFutureSNOfAsphalt(CalcContext& context, std::string_view target) {
    context.Put(target,
                FutureSN(context.Get("ACACTHICK"), context.Get("ACACOLLC"), context.Get("ACACEFFSN")));
}

void CalcFracturedSlabSN(CalcContext& context, std::string_view target) {
    const Real slab = context.Get("CSPCLT") * context.Get("CSPCLC") * context.Get("CSPCDC");
    const Real subbase = context.Get("SUBLT") * context.Get("SUBLC") * context.Get("SUBDC");
    context.Put(target, ClampValue(slab + subbase, 0.25, 15.0));
}

void CalcOverlayOfFracturedSlab(CalcContext& context, std::string_view target) {
    context.Put(target, OverlayThickness(context.Get("ACCSFUTSN"), context.Get("ACCSEFFSN"),
                                         context.Get("ACCSOLLC")));
}

void CalcFutureSNOfFracturedSlab(CalcContext& context, std::string_view target) {
    context.Put(target,
                FutureSN(context.Get("ACCSTHICK"), context.Get("ACCSOLLC"), context.Get("ACCSEFFSN")));
}

}  // namespace kelvor
