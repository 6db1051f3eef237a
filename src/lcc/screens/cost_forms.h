#pragma once

#include <vector>

#include "forms/form_type.h"

namespace kelvor {

/// The screens of life-cycle costs: the four pages of a pavement, the summary, and the charts.
std::vector<FormDeclaration> CostForms();

}  // namespace kelvor
