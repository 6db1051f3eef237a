#include "shell/about_form.h"

#include "forms/form.h"

namespace kelvor {

FormType AboutForm(const std::vector<Library>& ofFrontEnd) {
    std::vector<Library> libraries = CoreLibraries();
    libraries.insert(libraries.end(), ofFrontEnd.begin(), ofFrontEnd.end());
    FormType type;
    type.name = kAboutForm;
    type.caption = "About Kelvor";
    type.needsProject = false;
    type.layout = Rows({
        Heading("ProductLabel", "Kelvor"),
        Text("VersionLabel", "Version " + std::string(ProgramVersion())),
        Text("CommitLabel", "Commit " + std::string(SourceCommit())),
        Text("PurposeLabel",
             "Design of new pavements and overlays, evaluation of deflection tests, traffic and "
             "life-cycle cost by the 1993 AASHTO Guide for Design of Pavement Structures."),
        Text("LibrariesLabel", "With " + NamesOf(libraries) + "."),
        Text("LicenceLabel",
             "Free software under the GNU General Public License, version 3 or later; without any warranty."),
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
