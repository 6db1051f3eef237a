#pragma once

#include "forms/form_type.h"

namespace kelvor {

/// `CSec`: the layers of the screen that was in front when it was opened, as a stack of boxes. Drawn anew
/// from the project when it is opened, comes to the front, or the units are switched.
FormType LayerDiagramForm();

/// `CSec2`: the same for the screens with a table of layers, `DeF`, `DeS` and `OvAA`.
FormType LayerListForm();

}  // namespace kelvor
