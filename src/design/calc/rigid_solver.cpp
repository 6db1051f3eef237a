#include "calc/clamp.h"
#include "design/calc/bracket_search.h"
#include "design/calc/design_equations.h"
#include "design/calc/slab_limits.h"
#include "design/calc/solve_for.h"
#include "design/calc/solver_steps.h"

namespace kelvor {

namespace {

/// Solves one term of the rigid design equation, log10 W18 = ZR S0 + 7.35 log10(D + 1) - 0.06 +
/// log10((P0 - Pt) / 3) / (1 + 1.624e7 / (D + 1)^8.46) + (4.22 - 0.32 Pt) log10(ratio), with
/// ratio = MR Cd (D^0.75 - 1.132) / (215.63 J (D^0.75 - 18.42 / (Ec / k)^0.25)).
class RigidSolver : EquationSolver<kRigidTerms> {
  public:
    using EquationSolver::EquationSolver;

    int Solve(int term) {
        return RunSolve(context_, term, terms_, [&] {
            ComputeTerms();
            return SolveCase(term);
        });
    }

  private:
    /// What the cases share of the equation.
    void ComputeTerms() {
        const Real D = Value(kThickness);
        deviateTerm_ = context_.reliability.ZR * Value(kRigidDeviation);
        thicknessTerm_ = 7.35 * (Log(D + 1.0) / Ln10);
        serviceabilityTerm_ = Log((Value(kRigidPo) - Value(kRigidPt)) / 3.0) / Ln10;
        serviceabilityFactor_ = 1.0 / (1.0 + 1.624e7 / Pow(D + 1.0, 8.46));
        ratioFactor_ = 4.22 - 0.32 * Value(kRigidPt);
        ratioTerm_ = Log(Value(kRupture) * Value(kDrainage) * (ThicknessPower() - 1.132) /
                         (215.63 * Value(kLoadTransfer) * (ThicknessPower() - Stiffness()))) /
                     Ln10;
    }

    int SolveCase(int term) {
        switch (term) {
            case kThickness:
                return SolveThickness();
            case kRigidTraffic:
                return SolveTraffic();
            case kRigidReliability:
                return SolveReliability(DeviateTimesDeviation() / Value(kRigidDeviation));
            case kRigidDeviation:
                return Write(term, DeviateTimesDeviation() / context_.reliability.ZR);
            case kRupture:
                return Write(term, RequiredRatio() /
                                       (Value(kDrainage) * (ThicknessPower() - 1.132) /
                                        (215.63 * Value(kLoadTransfer) * (ThicknessPower() - Stiffness()))));
            case kElasticity:
                return Write(term, Pow(-18.42 / (RequiredMargin() - ThicknessPower()), 4.0) *
                                       Value(kSubgradeReaction));
            case kLoadTransfer:
                return Write(term, (Value(kRupture) * Value(kDrainage) * (ThicknessPower() - 1.132) /
                                    (215.63 * (ThicknessPower() - Stiffness()))) /
                                       RequiredRatio());
            case kSubgradeReaction:
                return Write(term,
                             Value(kElasticity) / Pow(-18.42 / (RequiredMargin() - ThicknessPower()), 4.0));
            case kDrainage:
                return Write(term, RequiredRatio() /
                                       (Value(kRupture) * (ThicknessPower() - 1.132) /
                                        (215.63 * Value(kLoadTransfer) * (ThicknessPower() - Stiffness()))));
            case kRigidPo:
                return Write(term, Value(kRigidPt) + ServiceabilityLoss());
            default:
                return kSolveDone;  // Pt has no solution of its own: nothing is written
        }
    }

    /// D^0.75.
    [[nodiscard]] Real ThicknessPower() const { return Pow(Value(kThickness), 0.75); }

    /// 18.42 / (Ec / k)^0.25, which D^0.75 must exceed.
    [[nodiscard]] Real Stiffness() const {
        return 18.42 / Pow(Value(kElasticity) / Value(kSubgradeReaction), 0.25);
    }

    /// The value of the ratio that the traffic requires.
    [[nodiscard]] Real RequiredRatio() const {
        return Pow(10.0, (LogTraffic() - deviateTerm_ - thicknessTerm_ - kConstant -
                          serviceabilityFactor_ * serviceabilityTerm_) /
                             ratioFactor_);
    }

    /// What D^0.75 - 18.42 / (Ec / k)^0.25 must be for the traffic.
    [[nodiscard]] Real RequiredMargin() const {
        return Value(kRupture) * Value(kDrainage) * (ThicknessPower() - 1.132) /
               (215.63 * Value(kLoadTransfer) * RequiredRatio());
    }

    [[nodiscard]] Real DeviateTimesDeviation() const {
        return LogTraffic() - thicknessTerm_ - kConstant - serviceabilityFactor_ * serviceabilityTerm_ -
               ratioTerm_ * ratioFactor_;
    }

    /// P0 - Pt.
    [[nodiscard]] Real ServiceabilityLoss() const {
        return 3.0 * Pow(10.0, (LogTraffic() - deviateTerm_ - thicknessTerm_ - kConstant -
                                ratioTerm_ * ratioFactor_) /
                                   serviceabilityFactor_);
    }

    [[nodiscard]] RigidInputs Inputs() const {
        return {Value(kRigidDeviation),   Value(kRupture),  Value(kElasticity), Value(kLoadTransfer),
                Value(kSubgradeReaction), Value(kDrainage), Value(kRigidPo),    Value(kRigidPt)};
    }

    int SolveTraffic() {
        if (ThicknessPower() < Stiffness()) {
            ReportOutsideBounds(context_.dialogs);
            return kSolveFailed;
        }
        Real w18 = Value(kRigidTraffic);
        EvaluateRigid(context_, Inputs(), Value(kThickness), w18);
        return Write(kRigidTraffic, w18);
    }

    /// About the thinnest slab for which the equation holds.
    [[nodiscard]] Real LowestStart() const {
        const Real low = 48.65 * Pow(Value(kSubgradeReaction), 0.415) / Pow(Value(kElasticity), 0.341);
        return Pow(low, 0.75) <= 1.132 ? Real(1.18) : low;
    }

    int SolveThickness() {
        SearchProblem problem;
        problem.low = LowestStart();
        problem.high = kThickestSlab;
        problem.lowers = false;
        problem.traffic = [this, inputs = Inputs()](Real D, Real& w18) {
            EvaluateRigid(context_, inputs, D, w18);
        };
        problem.target = Value(kRigidTraffic);
        const SearchResult result = SearchBracket(problem, context_.clock);
        if (result.end == SearchEnd::BelowBracket) {
            ReportOutsideBounds(context_.dialogs);
            return kSolveFailed;
        }
        if (result.end == SearchEnd::Found) Write(kThickness, result.x);
        return Write(kThickness, ClampValue(Value(kThickness), kThinnestSlab, kThickestSlab));
    }

    static constexpr double kConstant = -0.06;

    Real deviateTerm_;           // ZR S0
    Real thicknessTerm_;         // 7.35 log10(D + 1)
    Real serviceabilityTerm_;    // log10((P0 - Pt) / 3)
    Real serviceabilityFactor_;  // 1 / (1 + 1.624e7 / (D + 1)^8.46)
    Real ratioFactor_;           // 4.22 - 0.32 Pt
    Real ratioTerm_;             // log10(ratio)
};

}  // namespace

int SolveForRigid(CalcContext& context, int term, TermNames names) {
    return RigidSolver(context, names).Solve(term);
}

}  // namespace kelvor
