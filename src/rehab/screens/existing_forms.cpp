#include "rehab/screens/existing_forms.h"

#include "rehab/screens/existing_slab.h"

namespace kelvor {

std::vector<FormType> ExistingPavementForms() { return {ExistingSlabForm(), ExistingCompositeForm()}; }

}  // namespace kelvor
