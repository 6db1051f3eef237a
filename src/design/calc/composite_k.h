#pragma once

#include <optional>

namespace kelvor {

/// What the effective modulus of subgrade reaction is worked out from. 0: not there.
struct SubgradeLayers {
    double roadbedModulus = 0.0;     // psi; in metric mode MPa
    double subbaseModulus = 0.0;     // psi
    double subbaseThickness = 0.0;   // inches
    double depthToFoundation = 0.0;  // feet, to a rigid layer below
    double lossOfSupport = 0.0;      // category 0 to 3; any other counts as 0
};

/// The composite k of soil and subbase, psi/in, corrected for a rigid foundation and for loss of support:
/// fits of the curves of the 1993 AASHTO Guide, Part II, Figures 3.3, 3.5 and 3.6. A step that faults (a
/// logarithm of a negative number, say) is passed over. Nothing if there is no soil modulus.
std::optional<double> CompositeKEnglish(const SubgradeLayers& layers);

/// In metric units, MPa/m, k follows from the soil modulus alone, in MPa. Throws ArithmeticFault on overflow.
std::optional<double> CompositeKMetric(const SubgradeLayers& layers);

}  // namespace kelvor
