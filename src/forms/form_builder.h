#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "catalogue/catalogue.h"
#include "forms/control.h"
#include "forms/form_type.h"

namespace kelvor {

/// The caption texts that stand for "no unit worth showing".
bool IsNoUnit(std::string_view unit);

/// Binds a box and the unit behind it to a variable; null: the catalogue has no such variable.
void BindBox(Control& box, Control& unit, const std::string& name, const Variable* variable);

/// The controls of a form type: those of its layout, in its order, then the buttons at its foot and the
/// hidden boxes that it needs.
std::vector<std::unique_ptr<Control>> BuildControls(const FormType& type, const Catalogue& catalogue);

}  // namespace kelvor
