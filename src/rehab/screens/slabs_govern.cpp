#include <initializer_list>

#include "design/calc/slab_limits.h"
#include "platform/number_picture.h"
#include "platform/translation.h"
#include "rehab/calc/asphalt_on_concrete.h"
#include "rehab/screens/overlay_governs.h"
#include "rehab/screens/overlay_sentences.h"

namespace kelvor {

namespace {

constexpr const char* kRatioPicture = "0.00";

Real Product(const ScreenContext& context, std::initializer_list<const char*> factors) {
    Real product = 1.0;
    for (const char* factor : factors) product = product * context.calc.Get(factor);
    return product;
}

/// What bounds an effective thickness of so many inches.
std::string EffectiveSentence(const ScreenContext& context, Real inches) {
    if (inches == 0.0) return Translated("No effective thickness: the slab or one of its factors is 0.");
    if (inches > kThickestSlab) {
        return Filled(Translated("Effective thickness held at the limit of %1."),
                      {LengthText(context, kThickestSlab)});
    }
    return inches < 0.0 ? Translated("A negative effective thickness counts as 0.") : "";
}

/// How much asphalt makes up for the slab that is missing.
std::string AsphaltSentence(const ScreenContext& context, Real lackInches) {
    return Filled(Translated("The slab lacks %1, each part of which takes %2 of asphalt."),
                  {LengthText(context, lackInches.value()),
                   FormatNumber(AsphaltPerConcrete(lackInches).value(), kRatioPicture)});
}

WantedThickness ConcreteOverlay(const ScreenContext& context, Real inches, double least) {
    return {.inches = inches,
            .least = least,
            .most = kThickestSlab,
            .what = Translated("thickness"),
            .plainly = Filled(Translated("The overlay makes up what is missing: %1."),
                              {LengthText(context, inches.value())})};
}

/// The thickness that the formula of the composite pavement takes from the other screen.
StatusLine OtherScreenLine(const ScreenContext& context) {
    if (context.calc.Get("ACACPCFUTD") == 0.0) return {};
    if (context.calc.Get("ACPCEFFD") == 0.0) {
        return {
            Translated("Warning: the formula takes Effective PCC Thickness of the screen AC Overlay of PCC "
                       "Pavement, which is 0, so that the thickness leaps."),
            true};
    }
    return {Filled(Translated("The formula takes Effective PCC Thickness of the screen AC Overlay of PCC "
                              "Pavement, %1."),
                   {StoredText(context, "ACPCEFFD")})};
}

}  // namespace

StatusLine SlabGoverns(const ScreenContext& context) {
    const Real lack = context.calc.Get("ACPCFUTD") - context.calc.Get("ACPCEFFD");
    const Real effective = Product(context, {"EXISTDEPTH", "ACPCFJC", "ACPCFDUR", "ACPCFFAT"});
    return {Joined(EffectiveSentence(context, effective),
                   AnswerSentence(context, "ACPCFUTD", "ACPCOLT",
                                  {.inches = lack * AsphaltPerConcrete(lack),
                                   .what = Translated("thickness"),
                                   .plainly = AsphaltSentence(context, lack)}))};
}

StatusLine CompositeGoverns(const ScreenContext& context) {
    const Real future = context.calc.Get("ACACPCFUTD");
    const Real lack = future - context.calc.Get("ACACPCEFFD");
    const Real effective = Product(context, {"ACACPCACT", "ACACPCFAC"}) / 2.0 +
                           Product(context, {"EXISTDEPTH", "ACACPCFJC", "ACACPCFDUR"});
    const std::string plainly = lack < 0.0 ? Translated("Its own effective thickness exceeds the future one.")
                                           : AsphaltSentence(context, lack);
    const std::string own =
        Joined(EffectiveSentence(context, effective),
               AnswerSentence(context, "ACACPCFUTD", "ACACPCOLT",
                              {.inches = (future - context.calc.Get("ACPCEFFD")) * AsphaltPerConcrete(lack),
                               .what = Translated("thickness"),
                               .plainly = plainly}));
    const StatusLine other = OtherScreenLine(context);
    return {Joined(own, other.text), other.warns};
}

StatusLine BondedGoverns(const ScreenContext& context) {
    const Real effective = Product(context, {"EXISTDEPTH", "BOLFJC", "BOLFDUR", "BOLFFAT"});
    const Real lack = context.calc.Get("BOLFUTDEPTH") - context.calc.Get("BOLEFFDEPTH");
    return {Joined(
        EffectiveSentence(context, effective),
        AnswerSentence(context, "BOLFUTDEPTH", "BOLDEPTH", ConcreteOverlay(context, lack, kThinnestBonded)))};
}

StatusLine UnbondedGoverns(const ScreenContext& context) {
    const Real effective = Product(context, {"EXISTDEPTH", "UBOLFJCU"});
    const Real square =
        Pow(context.calc.Get("UBOLFUTDEPTH"), 2.0) - Pow(context.calc.Get("UBOLEFFDEPTH"), 2.0);
    const WantedThickness wanted =
        square > 0.0 ? ConcreteOverlay(context, Pow(square, 0.5), kThinnestSlab)
                     // A lack of nothing, too, is raised: any negative number tells that none is needed.
                     : ConcreteOverlay(context, -1.0, kThinnestSlab);
    return {Joined(EffectiveSentence(context, effective),
                   AnswerSentence(context, "UBOLFUTDEPTH", "UBOLDEPTH", wanted))};
}

StatusLine WhitetoppingGoverns(const ScreenContext& context) {
    const Real thickness = context.calc.Get("WTDEPTH");
    if (thickness == 0.0) return {Translated("The whitetopping thickness is not known yet.")};
    if (thickness >= kThickestSlab) {
        return {Filled(Translated("At the limit of %1."), {LengthText(context, kThickestSlab)})};
    }
    if (thickness < kThinnestSlab) {
        return {Filled(Translated("Below the least thickness of %1 that is ever solved for."),
                       {LengthText(context, kThinnestSlab)})};
    }
    if (thickness == kThinnestSlab) {
        return {Filled(Translated("At the least thickness of %1."), {LengthText(context, kThinnestSlab)})};
    }
    return {Translated("The whitetopping carries all of the traffic: the old pavement counts in k alone.")};
}

}  // namespace kelvor
