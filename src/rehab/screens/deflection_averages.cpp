#include "rehab/screens/deflection_averages.h"

#include "calc/calc_context.h"
#include "platform/translation.h"
#include "rehab/calc/effective_sn.h"

namespace kelvor {

namespace {

constexpr double kPsiPerKsi = 1000.0;

/// An average of no tests is 0.
std::optional<Real> UnlessZero(Real value) {
    return value == 0.0 ? std::nullopt : std::optional<Real>(value);
}

std::optional<Real> SoilModulus(const CalcContext& context) { return UnlessZero(context.Get("AVGNDTRM")); }

std::optional<Real> StructuralNumber(const CalcContext& context) {
    return UnlessZero(EffectiveSNFromDeflections(context.Get("NDTEFFD"), context.Get("AVGNDTEFFEP")));
}

std::optional<Real> SlabK(const CalcContext& context) { return UnlessZero(context.Get("AVGSTATK")); }
std::optional<Real> CompositeK(const CalcContext& context) { return UnlessZero(context.Get("AVGSTATKC")); }

std::optional<Real> SlabEc(const CalcContext& context) {
    return UnlessZero(context.Get("AVGNDTE") * kPsiPerKsi);
}

std::optional<Real> CompositeEc(const CalcContext& context) {
    return UnlessZero(context.Get("AVGNDTEC") * kPsiPerKsi);
}

}  // namespace

TakeOver SoilModulusFromDeflections(const char* variable) {
    return {variable, SoilModulus, Translated("the average modulus of the deflection tests")};
}

TakeOver StructuralNumberFromDeflections(const char* variable) {
    return {variable, StructuralNumber,
            Translated("the structural number by the average of the deflection tests")};
}

TakeOver SubgradeReactionFromDeflections() {
    return {"EXISTK", SlabK, Translated("the average static k of the deflection tests")};
}

std::vector<TakeOver> SlabFromDeflections() {
    return {{"EXISTEC", SlabEc, Translated("the average modulus of the deflection tests")},
            SubgradeReactionFromDeflections()};
}

std::vector<TakeOver> CompositeSlabFromDeflections() {
    return {{"EXISTEC", CompositeEc, Translated("the average modulus of the deflection tests")},
            {"EXISTK", CompositeK, Translated("the average static k of the deflection tests")}};
}

}  // namespace kelvor
