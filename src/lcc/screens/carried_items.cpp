#include "lcc/screens/carried_items.h"

#include <string>

#include "forms/form.h"
#include "lcc/calc/pavements.h"
#include "lcc/screens/cost_page.h"
#include "platform/translation.h"

namespace kelvor {

namespace {

/// The project has changed if a name has. How many that were not blank have another one now.
int Carry(ScreenContext& context, int pavement, const char* from, const char* to) {
    int replaced = 0;
    for (int row = 1; row <= kLastCostRow; ++row) {
        const std::string item = context.units.GetDisplayValue(from, row, pavement);
        const std::string before = context.units.GetDisplayValue(to, row, pavement);
        if (before == item) continue;
        if (!before.empty()) ++replaced;
        context.units.SetDisplayValue(to, row, pavement, item);
        context.bProjectChanged = true;
        context.act = Translated("copy of item names");
    }
    return replaced;
}

}  // namespace

int CarryItemsForward(ScreenContext& context, const Form& page) {
    return page.name() != "LcA1" ? 0 : Carry(context, PavementOf(page), "LayerType", "InitialItem");
}

void CarryItemsBack(ScreenContext& context, const Form& page) {
    if (page.name() == "LcA1_2") (void)Carry(context, PavementOf(page), "InitialItem", "LayerType");
}

}  // namespace kelvor
