#include "rehab/screens/overlay_sentences.h"

#include <cmath>

#include "platform/number_picture.h"

namespace kelvor {

namespace {

constexpr const char* kLengthPicture = "#,##0.0";
constexpr const char* kWholePicture = "#,##0";
constexpr const char* kStructuralNumberPicture = "#0.00";

constexpr const char* kLength = "in";
constexpr const char* kStructuralNumber = "ESN";

bool IsWhole(double value) { return std::fabs(value - std::round(value)) < 1e-9; }

std::string RaisedSentence(const ScreenContext& context, const WantedThickness& wanted) {
    const std::string raised = "Raised to the least thickness of " + LengthText(context, wanted.least);
    if (wanted.inches <= 0.0) return raised + " though none is needed.";
    return raised + ": the formula gives " + LengthText(context, wanted.inches.value()) + ".";
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
        return "No overlay needed: the effective " + wanted.what + " equals the future one.";
    }
    if (wanted.inches > wanted.most) return "Held at the limit of " + LengthText(context, wanted.most) + ".";
    if (wanted.inches >= wanted.least) return wanted.plainly;
    if (wanted.least > 0.0) return RaisedSentence(context, wanted);
    return "No overlay needed: the effective " + wanted.what + " exceeds the future one.";
}

std::string AnswerSentence(const ScreenContext& context, std::string_view future, std::string_view overlay,
                           const WantedThickness& wanted) {
    if (context.calc.Get(future) != 0.0) return ThicknessSentence(context, wanted);
    const std::string unknown = "The future " + wanted.what + " is not known yet.";
    const bool showsOverlay = context.calc.Get(overlay) != 0.0;
    return showsOverlay ? Joined(unknown, ThicknessSentence(context, wanted)) : unknown;
}

std::string Joined(const std::string& one, const std::string& other) {
    return one.empty() || other.empty() ? one + other : one + " " + other;
}

}  // namespace kelvor
