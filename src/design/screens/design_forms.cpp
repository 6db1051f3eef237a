#include "design/screens/design_forms.h"

#include "design/screens/composite_k_help.h"
#include "design/screens/flexible_design.h"
#include "design/screens/layer_coefficient_help.h"
#include "design/screens/layered_design.h"
#include "design/screens/rigid_design.h"
#include "design/screens/subgrade_modulus_help.h"
#include "design/screens/value_help.h"

namespace kelvor {

std::vector<FormDeclaration> DesignForms() {
    return {{"DeF", FlexibleDesignForm},
            {"DeR", RigidDesignForm},
            {"DeS", BothDesignsForm},
            {"LayDet", LayeredDesignForm},
            {"H_LDLayerCoef", LayerCoefficientHelp},
            {"H_ACACOLLC", OverlayCoefficientHelp},
            {"H_K", CompositeKHelp},
            {"H_SRM", SubgradeModulusHelp},
            {"H_SN", StructuralNumberHelp},
            {"H_SRMII", SoilModulusHelp}};
}

}  // namespace kelvor
