#include "rehab/screens/existing_forms.h"

#include "rehab/screens/deflection_sn_help.h"
#include "rehab/screens/existing_flexible.h"
#include "rehab/screens/existing_slab.h"
#include "rehab/screens/joint_factor_help.h"
#include "rehab/screens/survey_sn_help.h"

namespace kelvor {

std::vector<FormType> ExistingPavementForms() {
    return {ExistingFlexibleForm(), ExistingSlabForm(), ExistingCompositeForm(),
            DeflectionSNHelp(),     SurveySNHelp(),     JointFactorHelp()};
}

}  // namespace kelvor
