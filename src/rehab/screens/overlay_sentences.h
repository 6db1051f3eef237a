#pragma once

#include <string>

#include "forms/screen_context.h"

namespace kelvor {

/// A thickness as the formula gives it, before it is held within its bounds, in inches.
struct WantedThickness {
    Real inches;
    double least = 0.0;
    double most = 30.0;
    std::string what;     // of the future that the effective one is set against, translated: "thickness"
    std::string plainly;  // what is said of it where no bound holds it
};

/// A length of so many inches in the active unit: "30 in", "762 mm".
std::string LengthText(const ScreenContext& context, double inches);

/// A structural number in the active system, with two digits.
std::string StructuralNumberText(const ScreenContext& context, double structuralNumber);

/// The stored value of a variable with its unit; of a structural number without.
std::string StoredText(const ScreenContext& context, std::string_view variable);

/// What holds a thickness, or why none is needed.
std::string ThicknessSentence(const ScreenContext& context, const WantedThickness& wanted);

/// What is said of an overlay's thickness while the term that it follows from is not known. A thickness that
/// is shown nevertheless is explained.
std::string AnswerSentence(const ScreenContext& context, std::string_view future, std::string_view overlay,
                           const WantedThickness& wanted);

/// Two sentences in one text; either may be empty.
std::string Joined(const std::string& one, const std::string& other);

}  // namespace kelvor
