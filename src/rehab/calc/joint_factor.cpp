#include "rehab/calc/joint_factor.h"

namespace kelvor {

namespace {

/// A curve as two straight lines over the total in a mile, and its least value.
struct Lines {
    double bend;  // the last total of the first line, which begins at 1
    double firstSlope;
    double secondStart;
    double secondSlope;
    double least;
};

constexpr Lines kBonded = {135.0, 0.00232, 0.95, 0.00195, 0.55};
constexpr Lines kUnbonded = {35.0, 0.00106, 0.977, 0.000385, 0.9};

Real Factor(const Lines& lines, Real total, Real factorOfBefore) {
    Real factor = factorOfBefore;
    if (total >= 0.0 && total <= lines.bend) factor = 1.0 - lines.firstSlope * total;
    if (total > lines.bend) factor = lines.secondStart - lines.secondSlope * total;
    return factor < lines.least ? Real(lines.least) : factor;
}

}  // namespace

FjcSurvey EvaluateFjc(const FjcCounts& counts, FjcCurve curve, Real factorOfBefore) {
    FjcSurvey survey{counts, {}, {}};
    if (curve == FjcCurve::Unbonded) survey.counts.punchouts = 0.0;
    const FjcCounts& n = survey.counts;
    survey.total = n.joints + n.cracks + n.punchouts + n.expansionJoints;
    survey.factor = Factor(curve == FjcCurve::Unbonded ? kUnbonded : kBonded, survey.total, factorOfBefore);
    return survey;
}

}  // namespace kelvor
