#include "forms/common_buttons.h"

#include "platform/translation.h"

namespace kelvor {

ButtonItem OkButton() {
    return {kOkButton, "&OK", Translated("Close this screen; what was entered stays in the project")};
}

ButtonItem HelpButton() {
    return {kHelpButton, "Hel&p", Translated("Explain the field in hand, or work its value out")};
}

ButtonItem BackToFieldButton(const char* name) { return {name, "&OK", Translated("Go back to the field")}; }

ButtonItem BackButton() { return {kBackButton, Translated("&Back"), Translated("Go to the page before")}; }

ButtonItem NextButton() { return {kNextButton, Translated("&Next"), Translated("Go to the next page")}; }

}  // namespace kelvor
