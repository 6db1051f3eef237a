// What the design equations give for the stored terms: the truth beside the indicator.

#include "design/calc/design_equations.h"
#include "design/calc/reliability.h"
#include "design/calc/solve_for.h"
#include "platform/translation.h"

namespace kelvor {

namespace {

const char* const kReliabilityTooHigh = ToTranslate("a reliability of 100 per cent or more has no deviate");
const char* const kNoServiceabilityLoss = ToTranslate("Pt is not less than Po");
const char* const kSlabTooThin = ToTranslate("the slab is too thin for it");
const char* const kNoValue = ToTranslate("a term is beyond what it can take");

/// The terms as they are stored.
class StoredTerms {
  public:
    StoredTerms(const CalcContext& context, TermNames names) : context_(context), names_(names) {}

    [[nodiscard]] Real Value(int term) const {
        return context_.Get(names_[static_cast<std::size_t>(term - 1)]);
    }

  private:
    const CalcContext& context_;
    TermNames names_;
};

/// Runs what gives the traffic at a deviate ZR, unless the reliability has none or the serviceabilities leave
/// no loss; a fault is told by `whyNot`.
template <typename Traffic>
EquationAnswer AnswerAt(Real reliability, Real loss, Traffic traffic) {
    if (loss <= 0.0) return {{}, kNoServiceabilityLoss};
    const auto ZR = DeviateOf(reliability);
    if (!ZR) return {{}, kReliabilityTooHigh};
    try {
        return {traffic(*ZR), {}};
    } catch (const ArithmeticFault&) {
        return {{}, kNoValue};
    }
}

/// True if the equation has no value for so thin a slab: D^0.75 must exceed 1.132 and 18.42 / (Ec / k)^0.25.
bool IsTooThin(Real D, Real Ec, Real k) {
    try {
        const Real power = Pow(D, 0.75);
        return power <= 1.132 || power <= 18.42 / Pow(Ec / k, 0.25);
    } catch (const ArithmeticFault&) {
        return false;
    }
}

}  // namespace

EquationAnswer AnswerFlexible(const CalcContext& context, TermNames names) {
    const StoredTerms terms(context, names);
    const Real loss = terms.Value(kFlexiblePo) - terms.Value(kFlexiblePt);
    return AnswerAt(terms.Value(kFlexibleReliability), loss, [&](Real ZR) {
        const FlexibleInputs inputs = {terms.Value(kFlexibleDeviation), terms.Value(kSoilModulus),
                                       terms.Value(kFlexiblePo), terms.Value(kFlexiblePt)};
        return FlexibleTraffic(ZR, inputs, terms.Value(kStructuralNumber));
    });
}

EquationAnswer AnswerRigid(const CalcContext& context, TermNames names) {
    const StoredTerms terms(context, names);
    const Real D = terms.Value(kThickness);
    if (IsTooThin(D, terms.Value(kElasticity), terms.Value(kSubgradeReaction))) return {{}, kSlabTooThin};
    const Real loss = terms.Value(kRigidPo) - terms.Value(kRigidPt);
    return AnswerAt(terms.Value(kRigidReliability), loss, [&](Real ZR) {
        const RigidInputs inputs = {terms.Value(kRigidDeviation),   terms.Value(kRupture),
                                    terms.Value(kElasticity),       terms.Value(kLoadTransfer),
                                    terms.Value(kSubgradeReaction), terms.Value(kDrainage),
                                    terms.Value(kRigidPo),          terms.Value(kRigidPt)};
        return RigidTraffic(ZR, inputs, D);
    });
}

}  // namespace kelvor
