#include "rehab/calc/concrete_overlay.h"

#include "calc/clamp.h"
#include "design/calc/slab_limits.h"

namespace kelvor {

namespace {

/// The slab thickness whose square is given.
Real SlabOfSquare(Real square) {
    if (square > 0.0) return ClampValue(Pow(square, 0.5), kThinnestSlab, kThickestSlab);
    return kThinnestSlab;
}

}  // namespace

void CalcBondedEffective(CalcContext& context, std::string_view target) {
    const Real thickness =
        context.Get("EXISTDEPTH") * context.Get("BOLFJC") * context.Get("BOLFDUR") * context.Get("BOLFFAT");
    context.Put(target, ClampValue(thickness, 0.0, kThickestSlab));
}

void CalcBondedOverlay(CalcContext& context, std::string_view target) {
    const Real overlay = context.Get("BOLFUTDEPTH") - context.Get("BOLEFFDEPTH");
    context.Put(target, ClampValue(overlay, kThinnestBonded, kThickestSlab));
}

void CalcBondedFuture(CalcContext& context, std::string_view target) {
    const Real future = context.Get("BOLDEPTH") + context.Get("BOLEFFDEPTH");
    context.Put(target, ClampValue(future, kThinnestSlab, kThickestSlab));
}

void CalcUnbondedEffective(CalcContext& context, std::string_view target) {
    context.Put(target, ClampValue(context.Get("EXISTDEPTH") * context.Get("UBOLFJCU"), 0.0, kThickestSlab));
}

void CalcUnbondedOverlay(CalcContext& context, std::string_view target) {
    const Real future = context.Get("UBOLFUTDEPTH");
    const Real effective = context.Get("UBOLEFFDEPTH");
    context.Put(target, SlabOfSquare(Pow(future, 2.0) - Pow(effective, 2.0)));
}

void CalcUnbondedFuture(CalcContext& context, std::string_view target) {
    const Real overlay = context.Get("UBOLDEPTH");
    const Real effective = context.Get("UBOLEFFDEPTH");
    context.Put(target, SlabOfSquare(Pow(overlay, 2.0) + Pow(effective, 2.0)));
}

}  // namespace kelvor
