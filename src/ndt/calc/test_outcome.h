#pragma once

#include <optional>

#include "calc/calc_context.h"

namespace kelvor {

// How well the results of a test are founded, worked out from the stored cells of its row and the inputs of
// all tests. So it is the same after a project was closed and opened again.

/// How the search for the effective pavement modulus of a test ended.
struct SearchOutcome {
    bool converged = false;         // the modulus gives the measured d0 within 0.01 mils
    std::optional<double> atBound;  // the end of the searched moduli, psi, within 0.1 per cent of the modulus

    [[nodiscard]] bool IsSound() const { return converged && !atBound; }
};

/// Nothing for a test without an effective modulus.
std::optional<SearchOutcome> OutcomeOfSearch(const CalcContext& context, int row, int dim2);

/// True if the AREA of a test, in the cell of this variable, is not above 0 and below 36 inches, so that it
/// has no radius of relative stiffness. False for a test without AREA.
bool IsAreaWithoutSolution(const CalcContext& context, std::string_view variable, int row, int dim2);

}  // namespace kelvor
