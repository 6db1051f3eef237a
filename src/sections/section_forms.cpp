#include "sections/section_forms.h"

#include "sections/layer_diagrams.h"
#include "sections/section_charts.h"

namespace kelvor {

std::vector<FormType> SectionForms() {
    std::vector<FormType> forms = SectionChartForms();
    forms.push_back(LayerDiagramForm());
    forms.push_back(LayerListForm());
    return forms;
}

}  // namespace kelvor
