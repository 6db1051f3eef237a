#pragma once

#include <memory>
#include <vector>

#include "catalogue/catalogue.h"
#include "screens/forms/control.h"
#include "screens/forms/form_type.h"

namespace kelvor {

/// The caption texts that stand for "no unit worth showing".
bool IsNoUnit(std::string_view unit);

/// The controls of a form type, in the order of its layout.
std::vector<std::unique_ptr<Control>> BuildControls(const FormType& type, const Catalogue& catalogue);

}  // namespace kelvor
