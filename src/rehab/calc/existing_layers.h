#pragma once

#include <string_view>

#include "calc/calc_context.h"

namespace kelvor {

/// How many layers of an existing flexible pavement its screens show; the rows below them count in
/// SumAllLayers alone.
inline constexpr int kShownExistingLayers = 6;

/// The structural number that one layer of an existing flexible pavement still has, a m D: thickness
/// `EXISTLT` in inches, drainage coefficient `EXISTDC`, layer coefficient `ACSURFLC` as the condition survey
/// has it. 0 where one of the three was not entered; not bounded. Stops the program in a row that does not
/// exist. 1993 AASHTO Guide, Part III, Section 5.4.5; the Guide gives no m to the surface layer, Kelvor takes
/// one from every layer.
void CalcLayerEffectiveSN(CalcContext& context, std::string_view target, int layer, int dim2);

/// The structural number of the six layers that the screen shows: the sum of `EXISTEFSN`, row by row. A row
/// without a value adds 0. (1993 AASHTO Guide, Part III, Section 5.4.5.)
void SumSixLayers(CalcContext& context, std::string_view target);

/// The structural number of all layers that the project holds, shown or not: the sum of every cell of
/// `EXISTEFSN`; 0 if none has a value. (1993 AASHTO Guide, Part III, Section 5.4.5.)
void SumAllLayers(CalcContext& context, std::string_view target);

}  // namespace kelvor
