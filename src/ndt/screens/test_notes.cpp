#include "ndt/screens/test_notes.h"

#include "forms/form.h"
#include "forms/screen_context.h"
#include "ndt/calc/slab_basin.h"
#include "ndt/calc/test_outcome.h"
#include "ndt/screens/left_out_tests.h"
#include "platform/number_picture.h"

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

std::string CountText(int count, int tests, const std::string& what) {
    return std::to_string(count) + " of " + std::to_string(tests) + (tests == 1 ? " test " : " tests ") +
           what + ".";
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
    if (!outcome->atBound) return "Did not converge: no modulus gives the measured d0";
    const std::string end =
        "the search ended at its bound of " + Shown(context, column.variable, *outcome->atBound);
    return outcome->converged ? "Converged, but " + end : "Did not converge: " + end;
}

/// Of an AREA that no slab has.
std::string NoteOfArea(const ScreenContext& context, const Form& form, int row, const GridColumn& column) {
    if (column.variable != "AREA" && column.variable != "AREAC") return {};
    if (!IsAreaWithoutSolution(context.calc, column.variable, row, SliceOf(form))) return {};
    return "No solution: AREA is not below " + Shown(context, column.variable, kEvenBasinArea) +
           ", so the basin does not get shallower away from the load";
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
    std::string summary = unconverged == 0 ? "" : CountText(unconverged, tests, "did not converge");
    if (atBound > 0) {
        if (!summary.empty()) summary += " ";
        summary += CountText(atBound, tests, "ended at a bound of the search");
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
    if (unsolved == 0) return {};
    return CountText(unsolved, tests, unsolved == 1 ? "has no solution" : "have no solution");
}

}  // namespace kelvor
