#pragma once

#include <vector>

#include "forms/form_type.h"
#include "platform/version.h"

namespace kelvor {

inline constexpr const char* kAboutForm = "About";

/// `About`: which program this is, which version of it, and the libraries that it uses, those of the front
/// end last.
FormType AboutForm(const std::vector<Library>& ofFrontEnd);

}  // namespace kelvor
