#include "design/screens/design_forms.h"

#include "design/screens/composite_k_help.h"
#include "design/screens/flexible_design.h"
#include "design/screens/layer_coefficient_help.h"
#include "design/screens/layered_design.h"
#include "design/screens/rigid_design.h"
#include "design/screens/subgrade_modulus_help.h"
#include "design/screens/value_help.h"

namespace kelvor {

std::vector<FormType> DesignForms() {
    return {FlexibleDesignForm(),   RigidDesignForm(),        BothDesignsForm(), LayeredDesignForm(),
            LayerCoefficientHelp(), OverlayCoefficientHelp(), CompositeKHelp(),  SubgradeModulusHelp(),
            StructuralNumberHelp(), SoilModulusHelp()};
}

}  // namespace kelvor
