#include "shell/hub/screen_choice.h"
#include "shell/hub/tabs.h"

namespace kelvor {

HubPage TrafficTab() {
    constexpr HubGroup kGroup = HubGroup::Traffic;
    return {Page("Traffic",
                 {HubOptions(kGroup), Buttons({{HubButton(kGroup), "&Traffic", OpensChosenScreen()}})}),
            {OpeningChosenScreen(kGroup)}};
}

}  // namespace kelvor
