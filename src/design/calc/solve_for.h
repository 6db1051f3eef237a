#pragma once

#include <array>
#include <cstddef>
#include <string_view>

#include "calc/dispatch.h"

namespace kelvor {

/// The terms of the flexible equation by their numbers: structural number, W18, reliability, S0, MR, P0, Pt.
enum FlexibleTerm : int {
    kStructuralNumber = 1,
    kFlexibleTraffic,
    kFlexibleReliability,
    kFlexibleDeviation,
    kSoilModulus,
    kFlexiblePo,
    kFlexiblePt,
};

/// The terms of the rigid equation by their numbers: thickness D, W18, reliability, S0, MR, Ec, J, k, Cd, P0,
/// Pt.
enum RigidTerm : int {
    kThickness = 1,
    kRigidTraffic,
    kRigidReliability,
    kRigidDeviation,
    kRupture,
    kElasticity,
    kLoadTransfer,
    kSubgradeReaction,
    kDrainage,
    kRigidPo,
    kRigidPt,
};

inline constexpr std::size_t kFlexibleTerms = kFlexiblePt;
inline constexpr std::size_t kRigidTerms = kRigidPt;

/// The variables of an equation's terms, in the order of their numbers.
using FlexibleNames = std::array<std::string_view, kFlexibleTerms>;
using RigidNames = std::array<std::string_view, kRigidTerms>;

/// Solves term 1 to 7 of the flexible equation among the seven variables named. Every other term must be
/// entered, that is, differ from 0. Terms but the structural number also need a start other than 0 where the
/// intermediate terms use their logarithm.
int SolveForFlexible(CalcContext& context, int term, TermNames names);

/// Solves term 1 to 11 of the rigid equation among the eleven variables named, likewise. Term 11, Pt, has no
/// solution here: nothing is written and the result is 0. A solved thickness is held within 4 to 20 inches.
int SolveForRigid(CalcContext& context, int term, TermNames names);

/// What the equations give for the terms as they are stored.
EquationAnswer AnswerFlexible(const CalcContext& context, TermNames names);
EquationAnswer AnswerRigid(const CalcContext& context, TermNames names);

/// The key of a screen's equation among the variables named.
constexpr SolveKey FlexibleEquation(std::string_view screen, const FlexibleNames& names, int firstTerm = 1) {
    return {screen, firstTerm, names, SolveForFlexible, AnswerFlexible};
}

constexpr SolveKey RigidEquation(std::string_view screen, const RigidNames& names) {
    return {screen, 1, names, SolveForRigid, AnswerRigid};
}

}  // namespace kelvor
