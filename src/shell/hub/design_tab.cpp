#include "platform/translation.h"
#include "shell/hub/screen_choice.h"
#include "shell/hub/tabs.h"

namespace kelvor {

HubPage DesignTab() {
    constexpr HubGroup kGroup = HubGroup::Designs;
    return {Page("Design / Evaluation",
                 {HubOptions(kGroup),
                  Buttons({{HubButton(kGroup), Translated("&Design"), OpensChosenScreen()}})}),
            {OpeningChosenScreen(kGroup)}};
}

}  // namespace kelvor
