#include "design/screens/serviceability.h"

#include "forms/form.h"
#include "platform/number_text.h"

namespace kelvor {

bool CheckServiceability(ScreenContext& context, const Form& form, const char* initial,
                         const char* terminal) {
    if (ParseNumber(form.HiddenText(initial)) > ParseNumber(form.HiddenText(terminal))) return true;
    context.calc.dialogs.ShowMessage({.text = "          Error:   Pt  >=  Po          ", .title = "Values"});
    return false;
}

}  // namespace kelvor
