#pragma once

#include "platform/real.h"

namespace kelvor {

/// Which overlay a joint and crack factor is for. The Guide has one curve for overlays that follow the
/// movements of the slab, and one for those that lie unbonded on it.
enum class FjcCurve {
    Bonded,    // AC and bonded PCC overlays: 1993 AASHTO Guide, Part III, Figure 5.12
    Unbonded,  // unbonded PCC overlays: Figure 5.13
};

/// What a survey of a slab counted in a mile of the design lane and found unrepaired.
struct FjcCounts {
    Real joints;
    Real cracks;
    Real punchouts;
    Real expansionJoints;  // and exceptionally wide joints, and AC full-depth patches
};

/// A survey with what follows from it.
struct FjcSurvey {
    FjcCounts counts;  // that take part: an unbonded overlay counts no punchouts
    Real total;        // per mile
    Real factor;       // Fjc, at most 1
};

/// The total of a survey and its joint and crack factor Fjc, by which an existing slab counts less because of
/// the cracks that will show in the overlay. Straight lines that Kelvor draws through the curves of the
/// Guide:
///
/// - Bonded: 1 - 0.00232 n up to 135 in a mile, then 0.95 - 0.00195 n; at least 0.55 (the Guide reads 0.56).
/// - Unbonded: 1 - 0.00106 n up to 35 in a mile, then 0.977 - 0.000385 n; at least 0.9. Punchouts count 0.
///
/// A count that was not entered is 0. A negative total lies on neither line: the factor is then that of
/// before, held to its least value.
FjcSurvey EvaluateFjc(const FjcCounts& counts, FjcCurve curve, Real factorOfBefore);

}  // namespace kelvor
