#include "shell/about_form.h"

#include "forms/form.h"
#include "platform/translation.h"

namespace kelvor {

FormType AboutForm(const std::vector<Library>& ofFrontEnd) {
    std::vector<Library> libraries = CoreLibraries();
    libraries.insert(libraries.end(), ofFrontEnd.begin(), ofFrontEnd.end());
    FormType type;
    type.name = kAboutForm;
    type.caption = Translated("About Kelvor");
    type.needsProject = false;
    type.layout = Rows({
        Heading("ProductLabel", "Kelvor"),
        Text("VersionLabel", "Version " + std::string(ProgramVersion())),
        Text("CommitLabel", Filled(Translated("Commit %1"), {SourceCommit()})),
        Text("PurposeLabel",
             Translated("Design of new pavements and overlays, evaluation of deflection tests, traffic and "
                        "life-cycle cost by the 1993 AASHTO Guide for Design of Pavement Structures.")),
        Text("LibrariesLabel", Filled(Translated("With %1."), {NamesOf(libraries)})),
        Text("LicenceLabel",
             Translated("Free software under the GNU General Public License, version 3 or later; without any "
                        "warranty.")),
    });
    type.foot = {{kOkButton, "&OK", Translated("Close this window")}};
    type.handlers = {
        {FormEvent::Load, "", HandlerOrder::Instead, [](ScreenEvent&) {}},
        {FormEvent::Activate, "", HandlerOrder::After,
         [](ScreenEvent& event) { event.form.focus = event.form.Find(kOkButton); }},
    };
    return type;
}

}  // namespace kelvor
