#include "calc/clamp.h"
#include "design/calc/bracket_search.h"
#include "design/calc/design_equations.h"
#include "design/calc/solve_for.h"
#include "design/calc/solver_steps.h"

namespace kelvor {

namespace {

enum Term : int { kD = 1, kW18, kReliability, kS0, kMR, kEc, kJ, kk, kCd, kP0, kPt };

constexpr double kThinnestSlab = 4.0;   // inches
constexpr double kThickestSlab = 20.0;  // inches; also where the search starts from above

/// Solves one term of the rigid design equation, log10 W18 = ZR S0 + 7.35 log10(D + 1) - 0.06 +
/// log10((P0 - Pt) / 3) / (1 + 1.624e7 / (D + 1)^8.46) + (4.22 - 0.32 Pt) log10(ratio), with
/// ratio = MR Cd (D^0.75 - 1.132) / (215.63 J (D^0.75 - 18.42 / (Ec / k)^0.25)).
class RigidSolver {
  public:
    RigidSolver(CalcContext& context, const RigidNames& names)
        : context_(context), terms_(context.store, names) {}

    int Solve(int term) {
        return RunSolve(context_, term, terms_, [&] {
            ComputeTerms();
            return SolveCase(term);
        });
    }

  private:
    [[nodiscard]] Real Value(int term) const { return terms_.Value(term); }

    /// What the cases share of the equation.
    void ComputeTerms() {
        const Real D = Value(kD);
        ZS = context_.reliability.ZR * Value(kS0);
        DTerm = 7.35 * (Log(D + 1.0) / Ln10);
        ServTerm = Log((Value(kP0) - Value(kPt)) / 3.0) / Ln10;
        ServDiv = 1.0 / (1.0 + 1.624e7 / Pow(D + 1.0, 8.46));
        PtTerm = 4.22 - 0.32 * Value(kPt);
        RatioTerm =
            Log(Value(kMR) * Value(kCd) * (t() - 1.132) / (215.63 * Value(kJ) * (t() - Stiffness()))) / Ln10;
    }

    int SolveCase(int term) {
        switch (term) {
            case kD:
                return SolveThickness();
            case kW18:
                return SolveTraffic();
            case kReliability:
                return SolveReliability();
            case kS0:
                return Write(term, DeviateTimesDeviation() / context_.reliability.ZR);
            case kMR:
                return Write(term,
                             Y() / (Value(kCd) * (t() - 1.132) / (215.63 * Value(kJ) * (t() - Stiffness()))));
            case kEc:
                return Write(term, Pow(-18.42 / (q() - t()), 4.0) * Value(kk));
            case kJ:
                return Write(
                    term, (Value(kMR) * Value(kCd) * (t() - 1.132) / (215.63 * (t() - Stiffness()))) / Y());
            case kk:
                return Write(term, Value(kEc) / Pow(-18.42 / (q() - t()), 4.0));
            case kCd:
                return Write(term,
                             Y() / (Value(kMR) * (t() - 1.132) / (215.63 * Value(kJ) * (t() - Stiffness()))));
            case kP0:
                return Write(term, Value(kPt) + ServiceabilityLoss());
            default:
                return kSolveDone;  // Pt has no solution of its own: nothing is written
        }
    }

    int Write(int term, Real value) {
        terms_.Write(term, value);
        return kSolveDone;
    }

    /// The common logarithm of the traffic.
    [[nodiscard]] Real L() const { return Log(Value(kW18)) / Ln10; }

    [[nodiscard]] Real t() const { return Pow(Value(kD), 0.75); }

    /// 18.42 / (Ec / k)^0.25, which D^0.75 must exceed.
    [[nodiscard]] Real Stiffness() const { return 18.42 / Pow(Value(kEc) / Value(kk), 0.25); }

    /// The value of the ratio that the traffic requires.
    [[nodiscard]] Real Y() const { return Pow(10.0, (L() - ZS - DTerm - C0 - ServDiv * ServTerm) / PtTerm); }

    [[nodiscard]] Real q() const {
        return Value(kMR) * Value(kCd) * (t() - 1.132) / (215.63 * Value(kJ) * Y());
    }

    [[nodiscard]] Real DeviateTimesDeviation() const {
        return L() - DTerm - C0 - ServDiv * ServTerm - RatioTerm * PtTerm;
    }

    /// P0 - Pt.
    [[nodiscard]] Real ServiceabilityLoss() const {
        return 3.0 * Pow(10.0, (L() - ZS - DTerm - C0 - RatioTerm * PtTerm) / ServDiv);
    }

    [[nodiscard]] RigidInputs Inputs() const {
        return {terms_.Handle(kS0), terms_.Handle(kMR), terms_.Handle(kEc), terms_.Handle(kJ),
                terms_.Handle(kk),  terms_.Handle(kCd), terms_.Handle(kP0), terms_.Handle(kPt)};
    }

    int SolveTraffic() {
        if (t() < Stiffness()) {
            ReportOutsideBounds(context_.dialogs);
            return kSolveFailed;
        }
        Real w18 = Value(kW18);
        EvaluateRigid(context_, Inputs(), Value(kD), w18);
        return Write(kW18, w18);
    }

    int SolveReliability() {
        Real& ZR = context_.reliability.ZR;
        ZR = DeviateTimesDeviation() / Value(kS0);
        Real reliability;
        if (ZRToReliability(context_.dialogs, reliability, ZR) != 0) return kSolveFailed;
        return Write(kReliability, reliability);
    }

    /// About the thinnest slab for which the equation holds.
    [[nodiscard]] Real LowestStart() const {
        const Real low = 48.65 * Pow(Value(kk), 0.415) / Pow(Value(kEc), 0.341);
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
        if (result.end == SearchEnd::Found) terms_.Write(kD, result.x);
        return Write(kD, ClampValue(Value(kD), kThinnestSlab, kThickestSlab));
    }

    CalcContext& context_;
    TermCells<kRigidTerms> terms_;
    Real ZS;
    Real DTerm;
    Real C0 = -0.06;
    Real ServTerm;
    Real ServDiv;
    Real PtTerm;
    Real RatioTerm;
};

}  // namespace

int SolveForRigid(CalcContext& context, int term, const RigidNames& names) {
    return RigidSolver(context, names).Solve(term);
}

}  // namespace kelvor
