#include "rehab/screens/overlay_sentences.h"

#include <cmath>

#include "platform/number_picture.h"
#include "platform/translation.h"

namespace kelvor {

namespace {

constexpr const char* kLengthPicture = "#,##0.0";
constexpr const char* kWholePicture = "#,##0";
constexpr const char* kStructuralNumberPicture = "#0.00";

constexpr const char* kLength = "in";
constexpr const char* kStructuralNumber = "ESN";

bool IsWhole(double value) { return std::fabs(value - std::round(value)) < 1e-9; }

std::string RaisedSentence(const ScreenContext& context, const WantedThickness& wanted) {
    const std::string least = LengthText(context, wanted.least);
    if (wanted.inches <= 0.0) {
        return Filled(Translated("Raised to the least thickness of %1 though none is needed."), {least});
    }
    return Filled(Translated("Raised to the least thickness of %1: the formula gives %2."),
                  {least, LengthText(context, wanted.inches.value())});
}

}  // namespace

std::string LengthText(const ScreenContext& context, double inches) {
    const double length = inches * context.units.UnitFactor(kLength);
    return FormatNumber(length, IsWhole(length) ? kWholePicture : kLengthPicture) + " " +
           context.units.ActiveUnit(kLength);
}

std::string StructuralNumberText(const ScreenContext& context, double structuralNumber) {
    return FormatNumber(structuralNumber * context.units.UnitFactor(kStructuralNumber),
                        kStructuralNumberPicture);
}

std::string StoredText(const ScreenContext& context, std::string_view variable) {
    const Variable* row = context.catalogue.FindVariable(variable);
    const bool isLength = row != nullptr && row->units == kLength;
    const double stored = context.calc.Get(variable).value();
    return isLength ? LengthText(context, stored) : StructuralNumberText(context, stored);
}

std::string ThicknessSentence(const ScreenContext& context, const WantedThickness& wanted) {
    if (wanted.inches == 0.0) {
        return Filled(Translated("No overlay needed: the effective %1 equals the future one."),
                      {wanted.what});
    }
    if (wanted.inches > wanted.most) {
        return Filled(Translated("Held at the limit of %1."), {LengthText(context, wanted.most)});
    }
    if (wanted.inches >= wanted.least) return wanted.plainly;
    if (wanted.least > 0.0) return RaisedSentence(context, wanted);
    return Filled(Translated("No overlay needed: the effective %1 exceeds the future one."), {wanted.what});
}

std::string AnswerSentence(const ScreenContext& context, std::string_view future, std::string_view overlay,
                           const WantedThickness& wanted) {
    if (context.calc.Get(future) != 0.0) return ThicknessSentence(context, wanted);
    std::string unknown = Filled(Translated("The future %1 is not known yet."), {wanted.what});
    if (context.calc.Get(overlay) == 0.0) return unknown;
    const bool isLeast = wanted.least > 0.0 && wanted.inches <= 0.0;
    return Joined(unknown, isLeast ? Filled(Translated("Until then the least thickness of %1 is shown."),
                                            {LengthText(context, wanted.least)})
                                   : ThicknessSentence(context, wanted));
}

std::string Joined(const std::string& one, const std::string& other) {
    return one.empty() || other.empty() ? one + other : one + " " + other;
}

}  // namespace kelvor
