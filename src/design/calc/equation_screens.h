#pragma once

#include <optional>
#include <span>
#include <string_view>

#include "design/calc/solve_for.h"

namespace kelvor {

/// One design equation of a screen. A screen with two equations has two entries; the term numbers of
/// the second one begin at `firstTerm`.
struct EquationScreen {
    std::string_view screen;
    int firstTerm = 1;
    const FlexibleNames* flexible = nullptr;  // one of the two is set
    const RigidNames* rigid = nullptr;

    /// The variables of the terms, in the order of their numbers.
    [[nodiscard]] std::span<const std::string_view> Terms() const;
};

/// The eleven equations of the ten screens.
std::span<const EquationScreen> EquationScreens();

/// The equation to which a term number of a screen belongs; null if the screen has none. A number
/// beyond the screen's terms belongs to its last equation.
const EquationScreen* FindEquation(std::string_view screen, int term);

/// The number, on its screen, of the term that a variable is; nothing if it is none.
std::optional<int> TermNumber(std::string_view screen, std::string_view variable);

/// The number of the last term of a screen; 0 for a screen without an equation.
int LastTerm(std::string_view screen);

}  // namespace kelvor
