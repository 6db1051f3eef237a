#include "rehab/screens/existing_flexible.h"

#include "forms/work_out_help.h"
#include "platform/translation.h"
#include "rehab/screens/deflection_averages.h"
#include "rehab/screens/existing_layers_grid.h"

namespace kelvor {

FormType ExistingFlexibleForm() {
    FormType type;
    type.name = "ExF";
    type.caption = "Existing Flexible Pavement Information";
    type.rowName = {ToTranslate("layer"), ToTranslate("layers")};
    type.layout = Rows({
        Fields({{"EXISTRM"}, {"EXISTEP"}}),
        ExistingLayersGrid(),
        Fields({{"EXISTEFSNSUM"}}),
    });
    type.handlers = {{FormEvent::Activate, "", HandlerOrder::After, RecalcExistingLayers}};
    type.takeOvers = {SoilModulusFromDeflections("EXISTRM")};
    type.helpRoutes = {WorkOutSoilModulus("EXISTRM")};
    return type;
}

}  // namespace kelvor
