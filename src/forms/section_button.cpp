#include "forms/section_button.h"

#include "forms/form.h"
#include "forms/form_events.h"
#include "forms/side_screen.h"

namespace kelvor {

namespace {

constexpr const char* kName = "cmdbCS";

void OpenCrossSection(ScreenEvent& event) {
    FormEvents(event.context).Open({.form = event.form.name() + kSectionSuffix});
}

}  // namespace

ButtonItem CrossSectionButton() {
    return {kName, "&Cross Section", Translated("Draw this pavement to scale")};
}

Handler OpeningCrossSection() { return {FormEvent::Click, kName, HandlerOrder::Instead, OpenCrossSection}; }

}  // namespace kelvor
