#include "design/calc/solve_for.h"

#include "design/calc/equation_screens.h"

namespace kelvor {

int SolveForVariable(CalcContext& context, std::string_view screen, int term) {
    const EquationScreen* equation = FindEquation(screen, term);
    if (equation == nullptr) return 0;
    const int number = term - equation->firstTerm + 1;
    if (equation->flexible != nullptr) return SolveForFlexible(context, number, *equation->flexible);
    return SolveForRigid(context, number, *equation->rigid);
}

}  // namespace kelvor
