#include "screens/forms/side_screen.h"

#include "screens/forms/form_events.h"

namespace kelvor {

namespace {

constexpr double kTrue = -1.0;

}  // namespace

Form* OpenSideScreen(ScreenContext& context, const std::string& sideScreen, Form& caller,
                     const std::string& field) {
    const std::string& callerName = caller.name();
    FormEvents(context).Open(sideScreen);
    Form* form = context.forms.Find(sideScreen);
    if (form == nullptr || context.forms.CurrentForm != form) return nullptr;
    form->SetHiddenText("FormName", callerName);
    form->SetHiddenText("FieldName", field);
    return form;
}

void ReturnFromSideScreen(ScreenContext& context, const Form& sideScreen, bool valueTaken) {
    context.calc.store.SetVar("FieldChanged", valueTaken ? kTrue : 0.0);
    if (valueTaken) context.bProjectChanged = true;
    Form* caller = context.forms.Find(sideScreen.HiddenText("FormName"));
    if (caller == nullptr) return;
    caller->valueFromHelp = valueTaken;
    caller->returnTo = sideScreen.HiddenText("FieldName");
}

}  // namespace kelvor
