#pragma once

#include <array>
#include <cstddef>
#include <string_view>

#include "calc/calc_context.h"

namespace kelvor {

inline constexpr std::size_t kFlexibleTerms = 7;
inline constexpr std::size_t kRigidTerms = 11;

/// The terms of the flexible equation in the order of their numbers: structural number, W18,
/// reliability, S0, MR, P0, Pt.
using FlexibleNames = std::array<std::string_view, kFlexibleTerms>;

/// The terms of the rigid equation in the order of their numbers: thickness D, W18, reliability, S0, MR,
/// Ec, J, k, Cd, P0, Pt.
using RigidNames = std::array<std::string_view, kRigidTerms>;

/// Finds one term of a screen's design equation from all the others and stores it, in English units and
/// unrounded. 0: the solve ran to its end (also a search that ran out of time and wrote nothing); -1: it
/// was refused or failed, with its message and nothing written. A screen without an equation gives 0 and
/// touches nothing. On the screen of both designs terms 1 to 11 are rigid, 12 to 18 flexible.
///
/// Every other term must be entered, that is, differ from 0. Terms but the structural number and the
/// thickness also need a start other than 0 where the intermediate terms use their logarithm.
int SolveForVariable(CalcContext& context, std::string_view screen, int term);

/// Solves term 1 to 7 of the flexible equation among the variables named.
int SolveForFlexible(CalcContext& context, int term, const FlexibleNames& names);

/// Solves term 1 to 11 of the rigid equation among the variables named. Term 11, Pt, has no solution
/// here: nothing is written and the result is 0. A solved thickness is held within 4 to 20 inches.
int SolveForRigid(CalcContext& context, int term, const RigidNames& names);

}  // namespace kelvor
