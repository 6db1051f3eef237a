#include "platform/translation.h"
#include "rehab/screens/overlay_governs.h"
#include "rehab/screens/overlay_sentences.h"

namespace kelvor {

namespace {

constexpr double kLeastFracturedSN = 0.25;
constexpr double kMostFracturedSN = 15.0;

/// Why one of the two effective structural numbers is taken: the lesser one, or the one that there is.
std::string ChoiceSentence(const ScreenContext& context) {
    const Real deflections = context.calc.Get("NDTEFFSN");
    const Real survey = context.calc.Get("CONDEFFSN");
    const std::string tested = StoredText(context, "NDTEFFSN");
    const std::string surveyed = StoredText(context, "CONDEFFSN");
    if (deflections < 0.0 || survey < 0.0) {
        return Translated("Neither governs: one of the effective SN is negative.");
    }
    if (deflections == 0.0 && survey == 0.0) {
        return Translated("Neither NDT nor the condition survey gives an SN.");
    }
    if (survey == 0.0) return Filled(Translated("NDT governs: %1, without a condition survey."), {tested});
    if (deflections == 0.0) {
        return Filled(Translated("Condition survey governs: %1, without NDT."), {surveyed});
    }
    if (deflections < survey) {
        return Filled(Translated("NDT governs: %1 is less than %2."), {tested, surveyed});
    }
    if (survey < deflections) {
        return Filled(Translated("Condition survey governs: %1 is less than %2."), {surveyed, tested});
    }
    return Filled(Translated("NDT and the condition survey agree: %1."), {tested});
}

/// What bounds the structural number that a fractured slab and its subbase still have.
std::string FracturedSentence(const ScreenContext& context) {
    const CalcContext& cells = context.calc;
    const Real slab = cells.Get("CSPCLT") * cells.Get("CSPCLC") * cells.Get("CSPCDC");
    const Real subbase = cells.Get("SUBLT") * cells.Get("SUBLC") * cells.Get("SUBDC");
    const Real sum = slab + subbase;
    if (sum == 0.0) return Translated("Fractured slab and subbase carry nothing: the effective SN is 0.");
    if (sum < kLeastFracturedSN) {
        return Filled(Translated("Effective SN raised to the least of %1."),
                      {StructuralNumberText(context, kLeastFracturedSN)});
    }
    if (sum > kMostFracturedSN) {
        return Filled(Translated("Effective SN held at the limit of %1."),
                      {StructuralNumberText(context, kMostFracturedSN)});
    }
    return {};
}

/// The overlay that has the missing structural number.
std::string LackSentence(const ScreenContext& context, const char* future, const char* effective,
                         const char* coefficient, const char* overlay) {
    const Real perInch = context.calc.Get(coefficient);
    if (perInch == 0.0) return Translated("No thickness: the layer coefficient of the overlay is 0.");
    const Real lack = context.calc.Get(future) - context.calc.Get(effective);
    return AnswerSentence(context, future, overlay,
                          {.inches = lack / perInch,
                           .what = Translated("structural number"),
                           .plainly = Filled(Translated("The overlay supplies the missing SN of %1."),
                                             {StructuralNumberText(context, lack.value())})});
}

}  // namespace

StatusLine AsphaltOverlayGoverns(const ScreenContext& context) {
    return {Joined(ChoiceSentence(context),
                   LackSentence(context, "ACACFUTSN", "ACACEFFSN", "ACACOLLC", "ACACTHICK"))};
}

StatusLine FracturedSlabGoverns(const ScreenContext& context) {
    return {Joined(FracturedSentence(context),
                   LackSentence(context, "ACCSFUTSN", "ACCSEFFSN", "ACCSOLLC", "ACCSTHICK"))};
}

}  // namespace kelvor
