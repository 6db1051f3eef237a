#include "design/screens/design_forms.h"

#include "design/screens/flexible_design.h"
#include "design/screens/layered_design.h"

namespace kelvor {

std::vector<FormType> DesignForms() { return {FlexibleDesignForm(), LayeredDesignForm()}; }

}  // namespace kelvor
