#pragma once

#include "catalogue/catalogue.h"
#include "forms/form_registry.h"

namespace kelvor {

/// Looks for slips of the pen in what a form type declares: a handler for a control that the form does not
/// have, an equation without its indicator or button, a control that stands twice, a help route of what is
/// neither a field, a column nor an option of it. Throws std::logic_error with the names of the form and of
/// the control.
void CheckDeclaration(const FormType& type, const Catalogue& catalogue);

/// The same for every form type, and that the screen to which each help route leads is declared.
void CheckDeclarations(const FormRegistry& forms, const Catalogue& catalogue);

}  // namespace kelvor
