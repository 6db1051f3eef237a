#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "forms/form.h"
#include "forms/screen_context.h"

namespace kelvor {

/// Writes, for each equation of a form, the line that says what its button solves for, and the line that says
/// from the stored cells alone whether they satisfy the equation: "In balance" within 0.2 per cent of the
/// traffic that the equation gives; and on a form that tells it, what decides its result. It touches no flag
/// and no indicator. With no project open all are empty.
void ShowEquationLines(const ScreenContext& context, Form& form);

/// What the lines of a screen say, also while it is closed: whether the stored cells satisfy its equation,
/// and what decides its result. Empty for a screen that has no such line.
/// True if the stored cells satisfy the equations of a screen; false also where a term is missing. Nothing
/// for a screen without an equation.
std::optional<bool> EquationHolds(const ScreenContext& context, std::string_view screen);

std::string EquationCheck(const ScreenContext& context, std::string_view screen);
std::string WhatGoverns(const ScreenContext& context, std::string_view screen);

}  // namespace kelvor
