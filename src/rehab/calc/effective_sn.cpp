#include "rehab/calc/effective_sn.h"

namespace kelvor {

namespace {

Real GoverningSN(Real byDeflections, Real bySurvey) {
    if (byDeflections == 0.0 && bySurvey > 0.0) return bySurvey;
    if (byDeflections > 0.0 && bySurvey == 0.0) return byDeflections;
    if (byDeflections > 0.0 && bySurvey > 0.0) return byDeflections < bySurvey ? byDeflections : bySurvey;
    return 0.0;
}

}  // namespace

void ChooseEffectiveSN(CalcContext& context, std::string_view target) {
    context.Put(target, GoverningSN(context.Get("NDTEFFSN"), context.Get("CONDEFFSN")));
}

Real EffectiveSNFromDeflections(Real thicknessInches, Real modulusPsi) {
    return 0.0045 * thicknessInches * Pow(modulusPsi, 1.0 / 3.0);
}

}  // namespace kelvor
