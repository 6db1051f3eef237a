#include "rehab/screens/existing_forms.h"

#include "rehab/screens/deflection_sn_help.h"
#include "rehab/screens/existing_flexible.h"
#include "rehab/screens/existing_slab.h"
#include "rehab/screens/joint_factor_help.h"
#include "rehab/screens/survey_sn_help.h"

namespace kelvor {

std::vector<FormDeclaration> ExistingPavementForms() {
    return {{"ExF", ExistingFlexibleForm}, {"ExR", ExistingSlabForm}, {"ExC", ExistingCompositeForm},
            {"SNHelp", DeflectionSNHelp},  {"SNCHELP", SurveySNHelp}, {"FjcHelp", JointFactorHelp}};
}

}  // namespace kelvor
