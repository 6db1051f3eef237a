#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "sections/diagram_boxes.h"
#include "units/units.h"

namespace kelvor {

/// The layers of `CSec` for a screen, the top one first, each with the controls that show it. A screen that
/// it does not know has none, and its labels say so.
std::vector<DiagramLayer> LayersOfScreen(const Units& units, std::string_view screen);

/// What lies below the layers of `CSec`.
std::string GroundOfScreen(std::string_view screen);

/// The list of layers that `CSec2` shows for a screen.
struct LayerList {
    const char* variable = "";         // of the thicknesses
    std::vector<DiagramLayer> layers;  // the top one first
    std::string top;                   // the name of the top layer
};

/// The list of `DeF`, `DeS` or `OvAA`; empty for any other screen.
LayerList ListOfScreen(const Units& units, std::string_view screen);

}  // namespace kelvor
