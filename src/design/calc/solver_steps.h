#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <string_view>

#include "calc/calc_context.h"
#include "calc/calc_messages.h"
#include "calc/dispatch.h"
#include "design/calc/reliability.h"
#include "platform/real.h"

namespace kelvor {

/// What a solver gives back.
inline constexpr int kSolveDone = 0;
inline constexpr int kSolveFailed = -1;

/// Both equations have the traffic and the reliability at these term numbers.
inline constexpr int kTrafficTerm = 2;
inline constexpr int kReliabilityTerm = 3;

/// The terms of an equation by their numbers from 1, read once per solve.
template <std::size_t Count>
class Terms {
  public:
    Terms(ProjectStore& store, TermNames names) : store_(store), names_(names) {
        for (std::size_t i = 0; i < Count; ++i) values_[i] = store.GetVar(names[i]);
    }

    [[nodiscard]] Real Value(int term) const { return values_[Place(term)]; }

    void Write(int term, Real value) {
        store_.SetVar(names_[Place(term)], value);
        values_[Place(term)] = value;
    }

    /// True if a term other than the one being solved is 0, which means not entered.
    [[nodiscard]] bool AnyMissing(int solvedTerm) const {
        for (int term = 1; term <= static_cast<int>(Count); ++term) {
            if (term != solvedTerm && Value(term) == 0.0) return true;
        }
        return false;
    }

  private:
    static std::size_t Place(int term) { return static_cast<std::size_t>(term - 1); }

    ProjectStore& store_;
    TermNames names_;
    std::array<Real, Count> values_;
};

/// The flow that both solvers share: looks up ZR unless the reliability itself is sought, refuses with
/// a message if another term is missing, and runs the case; an arithmetic fault anywhere in it shows the
/// overflow message and fails the solve.
template <std::size_t Count>
int RunSolve(CalcContext& context, int term, const Terms<Count>& terms,
             const std::function<int()>& solveCase) {
    try {
        const Real reliability = terms.Value(kReliabilityTerm);
        if (term != kReliabilityTerm && reliability != 0.0) {
            ReliabilityState& state = context.reliability;
            ReliabilityToZR(state.interval, context.dialogs, reliability, state.ZR);
        }
        if (terms.AnyMissing(term)) {
            context.dialogs.ShowMessage({.text = "ALL Other Variables Must Be Entered!"});
            return kSolveFailed;
        }
        return solveCase();
    } catch (const ArithmeticFault&) {
        ReportMathOverflow(context.dialogs);
        return kSolveFailed;
    }
}

/// What the solvers of both equations do alike.
template <std::size_t Count>
class EquationSolver {
  public:
    EquationSolver(CalcContext& context, TermNames names) : context_(context), terms_(context.store, names) {}

  protected:
    [[nodiscard]] Real Value(int term) const { return terms_.Value(term); }

    int Write(int term, Real value) {
        terms_.Write(term, value);
        return kSolveDone;
    }

    /// The common logarithm of the traffic.
    [[nodiscard]] Real LogTraffic() const { return Log(Value(kTrafficTerm)) / Ln10; }

    /// The reliability whose standard normal deviate ZR the equation asks for.
    int SolveReliability(Real zr) {
        context_.reliability.ZR = zr;
        Real reliability;
        if (ZRToReliability(context_.dialogs, reliability, zr) != 0) return kSolveFailed;
        return Write(kReliabilityTerm, reliability);
    }

    CalcContext& context_;
    Terms<Count> terms_;
};

}  // namespace kelvor
