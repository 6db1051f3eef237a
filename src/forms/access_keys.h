#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "forms/control.h"

namespace kelvor {

/// The access keys of the main window's menus: no form is given one of these.
inline constexpr std::string_view kMenuAccessKeys = "FIUVWH";

/// The access key that a caption marks with `&`; none if it marks none. `&&` is a plain ampersand.
char MarkedKey(const std::string& caption);

/// Gives every label of a field, and every button, without an access key a letter of its text that is still
/// free on its page and opens no menu.
void AssignAccessKeys(std::vector<std::unique_ptr<Control>>& controls);

}  // namespace kelvor
