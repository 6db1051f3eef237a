#include "design/calc/bracket_search.h"
#include "design/calc/design_equations.h"
#include "design/calc/solve_for.h"
#include "design/calc/solver_steps.h"

namespace kelvor {

namespace {

enum Term : int { kSN = 1, kW18, kReliability, kS0, kMR, kP0, kPt };

constexpr double kLowestStart = 0.01;
constexpr double kHighestStart = 30.0;

/// Solves one term of the flexible design equation, log10 W18 = ZR S0 + 9.36 log10(SN + 1) - 0.20 +
/// log10((P0 - Pt) / 2.7) / (0.40 + 1094 / (SN + 1)^5.19) + 2.32 log10 MR - 8.07.
class FlexibleSolver {
  public:
    FlexibleSolver(CalcContext& context, const FlexibleNames& names)
        : context_(context), terms_(context.store, names) {}

    int Solve(int term) {
        return RunSolve(context_, term, terms_, [&] {
            ComputeTerms();
            return SolveCase(term);
        });
    }

  private:
    /// What the cases share of the equation.
    void ComputeTerms() {
        const Real SN = terms_.Value(kSN);
        ZS = context_.reliability.ZR * terms_.Value(kS0);
        SNTerm = 9.36 * (Log(SN + 1.0) / Ln10);
        ServTerm = Log((terms_.Value(kP0) - terms_.Value(kPt)) / 2.7) / Ln10;
        ServDiv = 1.0 / (0.4 + 1094.0 / Pow(SN + 1.0, 5.19));
        MRTerm = 2.32 * (Log(terms_.Value(kMR)) / Ln10);
    }

    int SolveCase(int term) {
        switch (term) {
            case kSN:
                return SolveStructuralNumber();
            case kW18:
                return SolveTraffic();
            case kReliability:
                return SolveReliability();
            case kS0:
                return Write(term, DeviateTimesDeviation() / context_.reliability.ZR);
            case kMR:
                return Write(term, Pow(10.0, (L() - ZS - C0 - SNTerm - ServDiv * ServTerm) / 2.32));
            case kP0:
                return Write(term, terms_.Value(kPt) + ServiceabilityLoss());
            case kPt:
                return Write(term, terms_.Value(kP0) - ServiceabilityLoss());
            default:
                return kSolveDone;
        }
    }

    int Write(int term, Real value) {
        terms_.Write(term, value);
        return kSolveDone;
    }

    /// The common logarithm of the traffic.
    [[nodiscard]] Real L() const { return Log(terms_.Value(kW18)) / Ln10; }

    [[nodiscard]] Real DeviateTimesDeviation() const {
        return L() - C0 - SNTerm - ServDiv * ServTerm - MRTerm;
    }

    /// P0 - Pt.
    [[nodiscard]] Real ServiceabilityLoss() const {
        return 2.7 * Pow(10.0, (L() - ZS - C0 - SNTerm - MRTerm) / ServDiv);
    }

    [[nodiscard]] FlexibleInputs Inputs() const {
        return {terms_.Handle(kS0), terms_.Handle(kMR), terms_.Handle(kP0), terms_.Handle(kPt)};
    }

    int SolveTraffic() {
        Real w18 = terms_.Value(kW18);
        EvaluateFlexible(context_, Inputs(), terms_.Value(kSN), w18);
        return Write(kW18, w18);
    }

    int SolveReliability() {
        Real& ZR = context_.reliability.ZR;
        ZR = DeviateTimesDeviation() / terms_.Value(kS0);
        Real reliability;
        if (ZRToReliability(context_.dialogs, reliability, ZR) != 0) return kSolveFailed;
        return Write(kReliability, reliability);
    }

    int SolveStructuralNumber() {
        SearchProblem problem;
        problem.low = kLowestStart;
        problem.high = kHighestStart;
        problem.traffic = [this, inputs = Inputs()](Real SN, Real& w18) {
            EvaluateFlexible(context_, inputs, SN, w18);
        };
        problem.target = [this] { return terms_.Value(kW18); };
        const SearchResult result = SearchBracket(problem, context_.clock);
        if (result.end == SearchEnd::Found) terms_.Write(kSN, result.x);
        return kSolveDone;
    }

    CalcContext& context_;
    TermCells<kFlexibleTerms> terms_;
    Real ZS;
    Real C0 = -8.27;
    Real SNTerm;
    Real ServTerm;
    Real ServDiv;
    Real MRTerm;
};

}  // namespace

int SolveForFlexible(CalcContext& context, int term, const FlexibleNames& names) {
    return FlexibleSolver(context, names).Solve(term);
}

}  // namespace kelvor
