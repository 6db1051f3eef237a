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
    if (deflections < 0.0 || survey < 0.0) return "Neither governs: one of the effective SN is negative.";
    if (deflections == 0.0 && survey == 0.0) return "Neither NDT nor the condition survey gives an SN.";
    if (survey == 0.0) return "NDT governs: " + tested + ", without a condition survey.";
    if (deflections == 0.0) return "Condition survey governs: " + surveyed + ", without NDT.";
    if (deflections < survey) return "NDT governs: " + tested + " is less than " + surveyed + ".";
    if (survey < deflections) {
        return "Condition survey governs: " + surveyed + " is less than " + tested + ".";
    }
    return "NDT and the condition survey agree: " + tested + ".";
}

/// What bounds the structural number that a fractured slab and its subbase still have.
std::string FracturedSentence(const ScreenContext& context) {
    const CalcContext& cells = context.calc;
    const Real slab = cells.Get("CSPCLT") * cells.Get("CSPCLC") * cells.Get("CSPCDC");
    const Real subbase = cells.Get("SUBLT") * cells.Get("SUBLC") * cells.Get("SUBDC");
    const Real sum = slab + subbase;
    if (sum == 0.0) return "Fractured slab and subbase carry nothing: the effective SN is 0.";
    if (sum < kLeastFracturedSN) {
        return "Effective SN raised to the least of " + StructuralNumberText(context, kLeastFracturedSN) +
               ".";
    }
    if (sum > kMostFracturedSN) {
        return "Effective SN held at the limit of " + StructuralNumberText(context, kMostFracturedSN) + ".";
    }
    return {};
}

/// The overlay that has the missing structural number.
std::string LackSentence(const ScreenContext& context, const char* future, const char* effective,
                         const char* coefficient, const char* overlay) {
    const Real perInch = context.calc.Get(coefficient);
    if (perInch == 0.0) return "No thickness: the layer coefficient of the overlay is 0.";
    const Real lack = context.calc.Get(future) - context.calc.Get(effective);
    return AnswerSentence(context, future, overlay,
                          {.inches = lack / perInch,
                           .what = "structural number",
                           .plainly = "The overlay supplies the missing SN of " +
                                      StructuralNumberText(context, lack.value()) + "."});
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
