#include "rehab/screens/existing_slab.h"

#include <utility>

#include "forms/work_out_help.h"

namespace kelvor {

namespace {

LayoutElement SlabFrame() {
    return Frame("Frame1", "Existing Slab", {Fields({{"EXISTDEPTH"}, {"EXISTMR"}, {"EXISTEC"}, {"EXISTJ"}})});
}

LayoutElement SupportFrame() {
    return Frame("Frame2", "Support and Drainage", {Fields({{"EXISTK"}, {"EXISTC"}})});
}

FormType SlabForm(const char* name, const char* caption, LayoutElement layout) {
    FormType type;
    type.name = name;
    type.caption = caption;
    type.layout = std::move(layout);
    type.helpRoutes = {WorkOutK("EXISTK")};
    return type;
}

}  // namespace

FormType ExistingSlabForm() {
    return SlabForm("ExR", "Existing Rigid Pavement Information", Rows({SlabFrame(), SupportFrame()}));
}

FormType ExistingCompositeForm() {
    return SlabForm(
        "ExC", "Existing Composite Pavement Information",
        Rows({Frame("Frame3", "Existing Asphalt", {Fields({{"ACACPCACT"}})}), SlabFrame(), SupportFrame()}));
}

}  // namespace kelvor
