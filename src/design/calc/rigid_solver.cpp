#include "calc/clamp.h"
#include "design/calc/bracket_search.h"
#include "design/calc/design_equations.h"
#include "design/calc/solve_for.h"
#include "design/calc/solver_steps.h"

namespace kelvor {

namespace {

enum Term : int { kD = 1, kW18, kReliability, kS0, kMR, kEc, kJ, kSubgradeK, kCd, kP0, kPt };

constexpr double kThinnestSlab = 4.0;   // inches
constexpr double kThickestSlab = 20.0;  // inches; also where the search starts from above

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
        const Real D = Value(kD);
        deviateTerm_ = context_.reliability.ZR * Value(kS0);
        thicknessTerm_ = 7.35 * (Log(D + 1.0) / Ln10);
        serviceabilityTerm_ = Log((Value(kP0) - Value(kPt)) / 3.0) / Ln10;
        serviceabilityFactor_ = 1.0 / (1.0 + 1.624e7 / Pow(D + 1.0, 8.46));
        ratioFactor_ = 4.22 - 0.32 * Value(kPt);
        ratioTerm_ = Log(Value(kMR) * Value(kCd) * (ThicknessPower() - 1.132) /
                         (215.63 * Value(kJ) * (ThicknessPower() - Stiffness()))) /
                     Ln10;
    }

    int SolveCase(int term) {
        switch (term) {
            case kD:
                return SolveThickness();
            case kW18:
                return SolveTraffic();
            case kReliability:
                return SolveReliability(DeviateTimesDeviation() / Value(kS0));
            case kS0:
                return Write(term, DeviateTimesDeviation() / context_.reliability.ZR);
            case kMR:
                return Write(term,
                             RequiredRatio() / (Value(kCd) * (ThicknessPower() - 1.132) /
                                                (215.63 * Value(kJ) * (ThicknessPower() - Stiffness()))));
            case kEc:
                return Write(term,
                             Pow(-18.42 / (RequiredMargin() - ThicknessPower()), 4.0) * Value(kSubgradeK));
            case kJ:
                return Write(term, (Value(kMR) * Value(kCd) * (ThicknessPower() - 1.132) /
                                    (215.63 * (ThicknessPower() - Stiffness()))) /
                                       RequiredRatio());
            case kSubgradeK:
                return Write(term, Value(kEc) / Pow(-18.42 / (RequiredMargin() - ThicknessPower()), 4.0));
            case kCd:
                return Write(term,
                             RequiredRatio() / (Value(kMR) * (ThicknessPower() - 1.132) /
                                                (215.63 * Value(kJ) * (ThicknessPower() - Stiffness()))));
            case kP0:
                return Write(term, Value(kPt) + ServiceabilityLoss());
            default:
                return kSolveDone;  // Pt has no solution of its own: nothing is written
        }
    }

    /// D^0.75.
    [[nodiscard]] Real ThicknessPower() const { return Pow(Value(kD), 0.75); }

    /// 18.42 / (Ec / k)^0.25, which D^0.75 must exceed.
    [[nodiscard]] Real Stiffness() const { return 18.42 / Pow(Value(kEc) / Value(kSubgradeK), 0.25); }

    /// The value of the ratio that the traffic requires.
    [[nodiscard]] Real RequiredRatio() const {
        return Pow(10.0, (LogTraffic() - deviateTerm_ - thicknessTerm_ - kConstant -
                          serviceabilityFactor_ * serviceabilityTerm_) /
                             ratioFactor_);
    }

    /// What D^0.75 - 18.42 / (Ec / k)^0.25 must be for the traffic.
    [[nodiscard]] Real RequiredMargin() const {
        return Value(kMR) * Value(kCd) * (ThicknessPower() - 1.132) / (215.63 * Value(kJ) * RequiredRatio());
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
        return {Handle(kS0),        Handle(kMR), Handle(kEc), Handle(kJ),
                Handle(kSubgradeK), Handle(kCd), Handle(kP0), Handle(kPt)};
    }

    int SolveTraffic() {
        if (ThicknessPower() < Stiffness()) {
            ReportOutsideBounds(context_.dialogs);
            return kSolveFailed;
        }
        Real w18 = Value(kW18);
        EvaluateRigid(context_, Inputs(), Value(kD), w18);
        return Write(kW18, w18);
    }

    /// About the thinnest slab for which the equation holds.
    [[nodiscard]] Real LowestStart() const {
        const Real low = 48.65 * Pow(Value(kSubgradeK), 0.415) / Pow(Value(kEc), 0.341);
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
        problem.target = [this] { return Value(kW18); };
        const SearchResult result = SearchBracket(problem, context_.clock);
        if (result.end == SearchEnd::BelowBracket) {
            ReportOutsideBounds(context_.dialogs);
            return kSolveFailed;
        }
        if (result.end == SearchEnd::Found) Write(kD, result.x);
        return Write(kD, ClampValue(Value(kD), kThinnestSlab, kThickestSlab));
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

int SolveForRigid(CalcContext& context, int term, const RigidNames& names) {
    return RigidSolver(context, names).Solve(term);
}

}  // namespace kelvor
