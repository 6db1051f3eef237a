#include "lcc/screens/carried_items.h"

#include <string>

#include "forms/form.h"
#include "lcc/calc/pavements.h"
#include "lcc/screens/cost_page.h"
#include "platform/translation.h"

namespace kelvor {

namespace {

/// The project has changed if a name has.
void Carry(ScreenContext& context, int pavement, const char* from, const char* to) {
    for (int row = 1; row <= kLastCostRow; ++row) {
        const std::string item = context.units.GetDisplayValue(from, row, pavement);
        if (context.units.GetDisplayValue(to, row, pavement) == item) continue;
        context.units.SetDisplayValue(to, row, pavement, item);
        context.bProjectChanged = true;
        context.act = Translated("copy of item names");
    }
}

}  // namespace

void CarryItemsForward(ScreenContext& context, const Form& page) {
    if (page.name() == "LcA1") Carry(context, PavementOf(page), "LayerType", "InitialItem");
}

void CarryItemsBack(ScreenContext& context, const Form& page) {
    if (page.name() == "LcA1_2") Carry(context, PavementOf(page), "InitialItem", "LayerType");
}

}  // namespace kelvor
