#pragma once

#include <random>
#include <string>
#include <vector>

#include "forms/form.h"
#include "shell/user_event.h"

namespace kelvor::test {

/// One random act of a user who has no idea, on the current form or one of those that are named.
UserEvent RandomEvent(std::mt19937& random, const Form* current, const std::vector<std::string>& forms);

}  // namespace kelvor::test
