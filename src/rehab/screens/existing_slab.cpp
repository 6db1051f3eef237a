#include "rehab/screens/existing_slab.h"

#include <utility>

#include "forms/work_out_help.h"
#include "platform/translation.h"
#include "rehab/screens/deflection_averages.h"

namespace kelvor {

namespace {

LayoutElement SlabFrame() {
    return Frame("Frame1", Translated("Existing Slab"),
                 {Fields({{"EXISTDEPTH"}, {"EXISTMR"}, {"EXISTEC"}, {"EXISTJ"}})});
}

LayoutElement SupportFrame() {
    return Frame("Frame2", Translated("Support and Drainage"), {Fields({{"EXISTK"}, {"EXISTC"}})});
}

FormType SlabForm(const char* name, const char* caption, LayoutElement layout,
                  std::vector<TakeOver> takeOvers) {
    FormType type;
    type.name = name;
    type.caption = caption;
    type.layout = std::move(layout);
    type.helpRoutes = {WorkOutK("EXISTK")};
    type.takeOvers = std::move(takeOvers);
    return type;
}

}  // namespace

FormType ExistingSlabForm() {
    return SlabForm("ExR", "Existing Rigid Pavement Information", Rows({SlabFrame(), SupportFrame()}),
                    SlabFromDeflections());
}

FormType ExistingCompositeForm() {
    return SlabForm("ExC", "Existing Composite Pavement Information",
                    Rows({Frame("Frame3", Translated("Existing Asphalt"), {Fields({{"ACACPCACT"}})}),
                          SlabFrame(), SupportFrame()}),
                    CompositeSlabFromDeflections());
}

}  // namespace kelvor
