#include "sections/section_forms.h"

#include "sections/layer_diagrams.h"
#include "sections/section_charts.h"

namespace kelvor {

std::vector<FormDeclaration> SectionForms() {
    std::vector<FormDeclaration> forms = SectionChartForms();
    forms.push_back({"CSec", LayerDiagramForm});
    forms.push_back({"CSec2", LayerListForm});
    return forms;
}

}  // namespace kelvor
