#include "shell/hub/offer.h"

#include "platform/translation.h"

namespace kelvor {

void Offer(Form& hub, std::string_view name, bool enabled, const std::string& whyNot) {
    Control& control = hub.Get(name);
    control.enabled = enabled;
    control.toolTip = enabled ? control.does : Translated(whyNot);
    if (!enabled) control.value = false;
}

}  // namespace kelvor
