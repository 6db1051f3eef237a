#include "shell/about_form.h"

#include "forms/form.h"
#include "forms/screen_context.h"

namespace kelvor {

FormType AboutForm() {
    FormType type;
    type.name = "About";
    type.caption = "About Kelvor";
    type.needsProject = false;
    type.layout = Rows({
        Heading("ProductLabel", "Kelvor"),
        Text("VersionLabel", "Version " KELVOR_VERSION),
        Text("PurposeLabel",
             "Design of new pavements and overlays, evaluation of deflection tests, traffic and "
             "life-cycle cost by the 1993 AASHTO Guide for Design of Pavement Structures."),
    });
    type.foot = {{"cmdAction", "&OK"}};
    type.handlers = {
        {FormEvent::Load, "", HandlerOrder::Instead, [](ScreenEvent&) {}},
        {FormEvent::Activate, "", HandlerOrder::After,
         [](ScreenEvent& event) { event.form.focus = event.form.Find("cmdAction"); }},
    };
    return type;
}

}  // namespace kelvor
