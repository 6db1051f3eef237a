#include "platform/translation.h"
#include "platform/version.h"
#include "shell/hub/tabs.h"

namespace kelvor {

HubPage StartTab() {
    return {Page("KVR", {Picture("Image1", "pavement.svg"), Heading("ProductLabel", "Kelvor"),
                         Text("VersionLabel", "Version " + std::string(ProgramVersion())),
                         Text("GuideLabel", Translated("Pavement design by the 1993 AASHTO Guide"))}),
            {}};
}

}  // namespace kelvor
