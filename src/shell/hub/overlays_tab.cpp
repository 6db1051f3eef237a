#include "shell/hub/screen_choice.h"
#include "shell/hub/tabs.h"

namespace kelvor {

HubPage OverlaysTab() {
    const LayoutElement existing = Section("FrameEx", "Existing Pavement", {HubOptions(HubGroup::Existing)});
    const LayoutElement overlays = Section("FrameOv", "Overlay Design", {HubOptions(HubGroup::Overlays)});
    const LayoutElement tests = Section("FrameNDT", "Deflection Tests", {HubOptions(HubGroup::Deflections)});
    return {Page("Overlays", {Columns({Rows({existing, overlays}), Rows({tests})}),
                              Buttons({{HubButton(HubGroup::Overlays), "&Overlay"}})}),
            {OpeningChosenScreen(HubGroup::Overlays)}};
}

}  // namespace kelvor
