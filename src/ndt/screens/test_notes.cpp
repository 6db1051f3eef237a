#include "ndt/screens/test_notes.h"

#include "forms/form.h"
#include "forms/screen_context.h"
#include "ndt/calc/slab_basin.h"
#include "ndt/calc/test_outcome.h"
#include "ndt/screens/left_out_tests.h"
#include "platform/number_picture.h"
#include "platform/translation.h"

namespace kelvor {

namespace {

/// A number given in a variable's English unit, as that variable is shown, with its unit.
std::string Shown(const ScreenContext& context, const std::string& variable, double value) {
    const Variable* found = context.catalogue.FindVariable(variable);
    if (found == nullptr) return {};
    return FormatNumber(value * context.units.UnitFactor(found->units), found->format) + " " +
           context.units.UnitLabel(variable);
}

int SliceOf(const Form& form) { return form.dim2().value_or(1); }

int RowsOf(const Form& form) { return form.FindGrid()->grid->rows; }

/// How many of the tests a sentence is said of; it names the two numbers.
std::string CountText(const std::string& sentence, int count, int tests) {
    return Filled(sentence, {std::to_string(count), std::to_string(tests)});
}

std::string UnconvergedText(int count, int tests) {
    return CountText(tests == 1 ? Translated("%1 of %2 test did not converge.")
                                : Translated("%1 of %2 tests did not converge."),
                     count, tests);
}

std::string AtBoundText(int count, int tests) {
    return CountText(tests == 1 ? Translated("%1 of %2 test converged at a bound of the search.")
                                : Translated("%1 of %2 tests converged at a bound of the search."),
                     count, tests);
}

std::string UnsolvedText(int count, int tests) {
    if (tests == 1) return CountText(Translated("%1 of %2 test has no solution."), count, tests);
    return CountText(count == 1 ? Translated("%1 of %2 tests has no solution.")
                                : Translated("%1 of %2 tests have no solution."),
                     count, tests);
}

bool HasNumber(const ScreenContext& context, const std::string& variable, int row, int dim2) {
    const CellValue* cell = context.calc.store.FindCell(variable, row, dim2);
    return cell != nullptr && cell->number.has_value();
}

/// Of a search that did not give the measured deflection, or that ended at a bound.
std::string NoteOfSearch(const ScreenContext& context, const Form& form, int row, const GridColumn& column) {
    if (column.variable != "NDTEFFEP") return {};
    const auto outcome = OutcomeOfSearch(context.calc, row, SliceOf(form));
    if (!outcome || outcome->IsSound()) return {};
    if (!outcome->atBound) return Translated("Did not converge: no modulus gives the measured d0");
    return Filled(outcome->converged ? Translated("Converged, but the search ended at its bound of %1")
                                     : Translated("Did not converge: the search ended at its bound of %1"),
                  {Shown(context, column.variable, *outcome->atBound)});
}

/// Of an AREA that no slab has.
std::string NoteOfArea(const ScreenContext& context, const Form& form, int row, const GridColumn& column) {
    if (column.variable != "AREA" && column.variable != "AREAC") return {};
    if (!IsAreaWithoutSolution(context.calc, column.variable, row, SliceOf(form))) return {};
    return Filled(
        Translated("No solution: AREA is not below %1, so the basin does not get shallower away from "
                   "the load"),
        {Shown(context, column.variable, kEvenBasinArea)});
}

}  // namespace

std::string SearchNote(const ScreenContext& context, const Form& form, int row, const GridColumn& column) {
    return WithLeftOutNote(NoteOfSearch(context, form, row, column), form, row, column);
}

std::string AreaNote(const ScreenContext& context, const Form& form, int row, const GridColumn& column) {
    return WithLeftOutNote(NoteOfArea(context, form, row, column), form, row, column);
}

std::string SearchSummary(const ScreenContext& context, const Form& form) {
    int tests = 0;
    int unconverged = 0;
    int atBound = 0;
    for (int row = 1; row <= RowsOf(form); ++row) {
        const auto outcome = OutcomeOfSearch(context.calc, row, SliceOf(form));
        if (!outcome) continue;
        ++tests;
        if (!outcome->converged) ++unconverged;
        if (outcome->converged && outcome->atBound) ++atBound;
    }
    std::string summary = unconverged == 0 ? "" : UnconvergedText(unconverged, tests);
    if (atBound > 0) {
        if (!summary.empty()) summary += " ";
        summary += AtBoundText(atBound, tests);
    }
    return summary;
}

std::string AreaSummary(const ScreenContext& context, const Form& form, const std::string& variable) {
    int tests = 0;
    int unsolved = 0;
    for (int row = 1; row <= RowsOf(form); ++row) {
        if (HasNumber(context, variable, row, SliceOf(form))) ++tests;
        if (IsAreaWithoutSolution(context.calc, variable, row, SliceOf(form))) ++unsolved;
    }
    return unsolved == 0 ? "" : UnsolvedText(unsolved, tests);
}

}  // namespace kelvor
