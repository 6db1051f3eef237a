#include "rehab/calc/existing_layers.h"

namespace kelvor {

void CalcLayerEffectiveSN(CalcContext& context, std::string_view target, int layer, int dim2) {
    const Real thickness = context.Get("EXISTLT", layer, dim2);
    const Real drainage = context.Get("EXISTDC", layer, dim2);
    const Real coefficient = context.Get("ACSURFLC", layer, dim2);
    context.Put(target, layer, dim2, thickness * drainage * coefficient);
}

void SumSixLayers(CalcContext& context, std::string_view target) {
    Real sum;
    for (int layer = 1; layer <= kShownExistingLayers; ++layer) sum += context.Get("EXISTEFSN", layer, 1);
    context.Put(target, sum);
}

void SumAllLayers(CalcContext& context, std::string_view target) {
    context.Put(target, context.store.SQLSum("EXISTEFSN").value_or(0.0));
}

}  // namespace kelvor
