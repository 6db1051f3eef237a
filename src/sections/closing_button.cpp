#include "sections/closing_button.h"

#include "forms/form_events.h"

namespace kelvor {

namespace {

constexpr const char* kName = "cmdbClose";

void CloseForm(ScreenEvent& event) { FormEvents(event.context).Close(event.form); }

}  // namespace

ButtonItem ClosingButton() { return {kName, "&Close", Translated("Close this drawing")}; }

Handler ClosingByButton() { return {FormEvent::Click, kName, HandlerOrder::Instead, CloseForm}; }

}  // namespace kelvor
