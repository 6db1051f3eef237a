#pragma once

#include <span>
#include <string_view>

#include "forms/form.h"
#include "forms/screen_context.h"

namespace kelvor {

/// Moves the stored values and the units of the active system to the controls, then ShowSolved.
void RefreshScreen(ScreenContext& context, Form& form);

/// Recalculates a screen's outputs, but the single value whose name changed, in the order of the catalogue;
/// of a column only the cells of a row. Then RefreshScreen.
void RecalcOutputs(ScreenContext& context, Form& form, std::string_view changedName, int row);

/// The same for several rows at once: their cells of each column, then each single value once.
void RecalcRows(ScreenContext& context, Form& form, std::span<const int> rows);

/// Recalculates the cells of a screen's computed columns that hold a number, then RefreshScreen.
void RecalcAllOutputs(ScreenContext& context, Form& form);

/// Recalculates the computed columns of every row of a screen in which a cell is filled, then RefreshScreen.
void RecalcFilledRows(ScreenContext& context, Form& form);

}  // namespace kelvor
