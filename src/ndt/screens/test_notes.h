#pragma once

#include <string>

#include "forms/form_type.h"

namespace kelvor {

// What is to be said of single tests: as the note of the cell that it concerns, and counted in a sentence
// below the table. Nothing of it is stored. The notes also tell of a test that is left out of the spread.

/// Says of an effective modulus, `NDTEFFEP`, that it does not give the measured deflection, or that the
/// search ended at one of its bounds.
std::string SearchNote(const ScreenContext& context, const Form& form, int row, const GridColumn& column);

/// Says of an `AREA` or `AREAC` that no slab has it.
std::string AreaNote(const ScreenContext& context, const Form& form, int row, const GridColumn& column);

/// "3 of 42 tests did not converge."; empty if there is nothing to say.
std::string SearchSummary(const ScreenContext& context, const Form& form);

/// How many tests have no solution, by the variable of their AREA.
std::string AreaSummary(const ScreenContext& context, const Form& form, const std::string& variable);

}  // namespace kelvor
