#include "shell/hub/screen_choice.h"
#include "shell/hub/tabs.h"

namespace kelvor {

HubPage DesignTab() {
    return {Page("Design / Evaluation", {Options({{"oDeF", "Asphalt Pavement Design / Evaluation"},
                                                  {"oDeR", "Rigid Pavement Design / Evaluation"},
                                                  {"oDeS", "Both Rigid and Asphalt Design / Evaluation"}}),
                                         Buttons({{"Command4", "&Design"}})}),
            {{FormEvent::Click, "Command4", HandlerOrder::Instead, OpenChosenScreen}}};
}

}  // namespace kelvor
