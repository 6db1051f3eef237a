#include "rehab/screens/existing_layers_grid.h"

#include <utility>

#include "forms/recalculation.h"
#include "rehab/calc/existing_layers.h"

namespace kelvor {

LayoutElement ExistingLayersGrid(std::string materialAlsoSets) {
    return GridOfRows("Grid",
                      {{.variable = "EXISTMAT",
                        .list = true,
                        .listName = "LayerMat",
                        .alsoSets = std::move(materialAlsoSets)},
                       {.variable = "EXISTLT"},
                       {.variable = "EXISTDC"},
                       {.variable = "ACSURFLC"},
                       {.variable = "EXISTEFSN"}},
                      kShownExistingLayers);
}

void RecalcExistingLayers(ScreenEvent& event) {
    RecalcAllOutputs(event.context, event.form);
    RecalcOutputs(event.context, event.form, "", 0);
}

}  // namespace kelvor
