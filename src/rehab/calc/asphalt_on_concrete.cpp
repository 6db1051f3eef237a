#include "rehab/calc/asphalt_on_concrete.h"

#include "calc/clamp.h"
#include "design/calc/slab_limits.h"

namespace kelvor {

namespace {

constexpr double kThickestOverlay = 30.0;

}  // namespace

Real AsphaltPerConcrete(Real lackInches) {
    return 2.2233 + 0.0099 * Pow(lackInches, 2.0) - 0.1534 * lackInches;
}

void CalcEffectiveSlab(CalcContext& context, std::string_view target) {
    const Real thickness = context.Get("EXISTDEPTH") * context.Get("ACPCFJC") * context.Get("ACPCFDUR") *
                           context.Get("ACPCFFAT");
    context.Put(target, ClampValue(thickness, 0.0, kThickestSlab));
}

void CalcOverlayOfSlab(CalcContext& context, std::string_view target) {
    const Real lack = context.Get("ACPCFUTD") - context.Get("ACPCEFFD");
    context.Put(target, ClampValue(lack * AsphaltPerConcrete(lack), 0.0, kThickestOverlay));
}

void CalcEffectiveComposite(CalcContext& context, std::string_view target) {
    const Real asphalt = context.Get("ACACPCACT") / 2.0 * context.Get("ACACPCFAC");
    const Real slab = context.Get("ACACPCFDUR") * context.Get("ACACPCFJC") * context.Get("EXISTDEPTH");
    context.Put(target, ClampValue(asphalt + slab, 0.0, kThickestSlab));
}

void CalcOverlayOfComposite(CalcContext& context, std::string_view target) {
    const Real future = context.Get("ACACPCFUTD");
    const Real lack = future - context.Get("ACACPCEFFD");
    const Real overlay = (future - context.Get("ACPCEFFD")) * AsphaltPerConcrete(lack);
    context.Put(target, ClampValue(overlay, 0.0, kThickestOverlay));
}

}  // namespace kelvor
