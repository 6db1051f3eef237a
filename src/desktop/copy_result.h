#pragma once

#include <QString>

#include "forms/form.h"
#include "shell/program.h"

namespace kelvor {

/// What the field in focus shows, with its unit: "4.98", "254.0 mm"; of a grid the cell under the cursor.
/// Empty if the focus is on no field.
QString ValueOfFocus(Program& program, Form& form);

/// What a form shows, as lines whose parts are divided by tabs: of each field its label, value and unit, and
/// the filled rows of a grid below their headings.
QString TableOfScreen(Program& program, Form& form);

}  // namespace kelvor
