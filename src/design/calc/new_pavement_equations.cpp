#include "design/calc/new_pavement_equations.h"

#include <array>

#include "design/calc/solve_for.h"

namespace kelvor {

namespace {

constexpr FlexibleNames kFlexible = {"SN", "FLEXE18", "FLEXREL", "FLEXDEV", "RM", "FLEXPO", "FLEXPT"};
constexpr RigidNames kRigid = {"DEPTH", "RIGE18", "RIGREL", "RIGDEV", "MR",   "EC",
                               "J",     "K",      "C",      "RIGPO",  "RIGPT"};

constexpr std::array kEquations = {
    FlexibleEquation("DeF", kFlexible),
    RigidEquation("DeR", kRigid),
    RigidEquation("DeS", kRigid),
    FlexibleEquation("DeS", kFlexible, static_cast<int>(kRigidTerms) + 1),
};

}  // namespace

KeyTable NewPavementEquations() { return {.solves = kEquations}; }

}  // namespace kelvor
