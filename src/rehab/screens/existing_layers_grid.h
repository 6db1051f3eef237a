#pragma once

#include <string>

#include "forms/form_type.h"

namespace kelvor {

/// The layers of an existing flexible pavement, six rows of them; the captions are those that the catalogue
/// has for the screen. What else a new material changes on that screen may be told.
LayoutElement ExistingLayersGrid(std::string materialAlsoSets = {});

/// On activation: the structural numbers of the layers, shown or not, and their total are worked out anew.
void RecalcExistingLayers(ScreenEvent& event);

}  // namespace kelvor
