#include "design/calc/bracket_search.h"
#include "design/calc/design_equations.h"
#include "design/calc/solve_for.h"
#include "design/calc/solver_steps.h"

namespace kelvor {

namespace {

constexpr double kLowestStart = 0.01;
constexpr double kHighestStart = 30.0;

/// Solves one term of the flexible design equation, log10 W18 = ZR S0 + 9.36 log10(SN + 1) - 0.20 +
/// log10((P0 - Pt) / 2.7) / (0.40 + 1094 / (SN + 1)^5.19) + 2.32 log10 MR - 8.07.
class FlexibleSolver : EquationSolver<kFlexibleTerms> {
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
        const Real SN = Value(kStructuralNumber);
        deviateTerm_ = context_.reliability.ZR * Value(kFlexibleDeviation);
        snTerm_ = 9.36 * (Log(SN + 1.0) / Ln10);
        serviceabilityTerm_ = Log((Value(kFlexiblePo) - Value(kFlexiblePt)) / 2.7) / Ln10;
        serviceabilityFactor_ = 1.0 / (0.4 + 1094.0 / Pow(SN + 1.0, 5.19));
        modulusTerm_ = 2.32 * (Log(Value(kSoilModulus)) / Ln10);
    }

    int SolveCase(int term) {
        switch (term) {
            case kStructuralNumber:
                return SolveStructuralNumber();
            case kFlexibleTraffic:
                return SolveTraffic();
            case kFlexibleReliability:
                return SolveReliability(DeviateTimesDeviation() / Value(kFlexibleDeviation));
            case kFlexibleDeviation:
                return Write(term, DeviateTimesDeviation() / context_.reliability.ZR);
            case kSoilModulus:
                return Write(term, Pow(10.0, (LogTraffic() - deviateTerm_ - kConstant - snTerm_ -
                                              serviceabilityFactor_ * serviceabilityTerm_) /
                                                 2.32));
            case kFlexiblePo:
                return Write(term, Value(kFlexiblePt) + ServiceabilityLoss());
            case kFlexiblePt:
                return Write(term, Value(kFlexiblePo) - ServiceabilityLoss());
            default:
                return kSolveDone;
        }
    }

    /// ZR S0.
    [[nodiscard]] Real DeviateTimesDeviation() const {
        return LogTraffic() - kConstant - snTerm_ - serviceabilityFactor_ * serviceabilityTerm_ -
               modulusTerm_;
    }

    /// P0 - Pt.
    [[nodiscard]] Real ServiceabilityLoss() const {
        return 2.7 * Pow(10.0, (LogTraffic() - deviateTerm_ - kConstant - snTerm_ - modulusTerm_) /
                                   serviceabilityFactor_);
    }

    [[nodiscard]] FlexibleInputs Inputs() const {
        return {Value(kFlexibleDeviation), Value(kSoilModulus), Value(kFlexiblePo), Value(kFlexiblePt)};
    }

    int SolveTraffic() {
        Real w18 = Value(kFlexibleTraffic);
        EvaluateFlexible(context_, Inputs(), Value(kStructuralNumber), w18);
        return Write(kFlexibleTraffic, w18);
    }

    int SolveStructuralNumber() {
        SearchProblem problem;
        problem.low = kLowestStart;
        problem.high = kHighestStart;
        problem.traffic = [this, inputs = Inputs()](Real SN, Real& w18) {
            EvaluateFlexible(context_, inputs, SN, w18);
        };
        problem.target = Value(kFlexibleTraffic);
        const SearchResult result = SearchBracket(problem, context_.clock);
        return result.end == SearchEnd::Found ? Write(kStructuralNumber, result.x) : kSolveDone;
    }

    static constexpr double kConstant = -8.27;  // -0.20 - 8.07

    Real deviateTerm_;           // ZR S0
    Real snTerm_;                // 9.36 log10(SN + 1)
    Real serviceabilityTerm_;    // log10((P0 - Pt) / 2.7)
    Real serviceabilityFactor_;  // 1 / (0.40 + 1094 / (SN + 1)^5.19)
    Real modulusTerm_;           // 2.32 log10 MR
};

}  // namespace

int SolveForFlexible(CalcContext& context, int term, TermNames names) {
    return FlexibleSolver(context, names).Solve(term);
}

}  // namespace kelvor
