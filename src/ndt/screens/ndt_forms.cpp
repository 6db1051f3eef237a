#include "ndt/screens/ndt_forms.h"

#include "ndt/screens/composite_deflections.h"
#include "ndt/screens/flexible_deflections.h"
#include "ndt/screens/rigid_deflections.h"

namespace kelvor {

std::vector<FormDeclaration> DeflectionForms() {
    return {{"ReDfF", FlexibleDeflectionsForm},
            {"ReDfR", RigidDeflectionsForm},
            {"ReDfC", CompositeDeflectionsForm}};
}

}  // namespace kelvor
