#include "platform/translation.h"
#include "shell/hub/screen_choice.h"
#include "shell/hub/tabs.h"

namespace kelvor {

HubPage OverlaysTab() {
    const LayoutElement existing =
        Section("FrameEx", Translated("Existing Pavement"), {HubOptions(HubGroup::Existing)});
    const LayoutElement overlays =
        Section("FrameOv", Translated("Overlay Design"), {HubOptions(HubGroup::Overlays)});
    const LayoutElement tests =
        Section("FrameNDT", Translated("Deflection Tests"), {HubOptions(HubGroup::Deflections)});
    return {Page("Overlays",
                 {Columns({Rows({existing, overlays}), Rows({tests})}),
                  Buttons({{HubButton(HubGroup::Overlays), Translated("&Overlay"), OpensChosenScreen()}})}),
            {OpeningChosenScreen(HubGroup::Overlays)}};
}

}  // namespace kelvor
