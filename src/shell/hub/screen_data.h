#pragma once

#include <string_view>

#include "forms/screen_context.h"

namespace kelvor {

/// Whether a screen holds data, for what the hub offers. Each looks at numbers alone: a text counts as none.
/// With no project open no screen holds any.

/// True as soon as one cell of a variable, in any row and slice, differs from 0.
bool AnyCellCounts(const Catalogue& catalogue, const ProjectStore& project, std::string_view name);

/// True as soon as one variable of the screen differs from 0.
bool ScreenHasData(const ScreenContext& context, std::string_view screen);

/// The same for a screen with rows: the first row and the first slice count, and the layer's number does not.
bool ScreenHasCells(const ScreenContext& context, std::string_view screen);

/// The same of any row and any slice.
bool ScreenHasAnyCell(const ScreenContext& context, std::string_view screen);

/// The screen of vehicle types: the middle axle of its first three classes, and no other, tells.
bool ScreenHasAxleCells(const ScreenContext& context);

/// True if a value is shown for the variable.
bool IsFilled(const ScreenContext& context, std::string_view variable);

}  // namespace kelvor
