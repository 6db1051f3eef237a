#pragma once

#include <string>
#include <string_view>

#include "forms/screen_context.h"

namespace kelvor {

// What an event does, in the words that stand behind Undo.

/// "change of Reliability", by the catalogue's name of a variable; with the row of a grid, if one is given,
/// "change of Thickness, row 3".
std::string ChangeOf(const ScreenContext& context, std::string_view variable, int row = 0);

/// "paste of 30 tests", "paste of 1 row": how many, of things that have a name in the singular.
std::string CountOf(std::string_view act, std::size_t count, std::string_view thing);

/// The caption of a button or an option, without the mark of its access key.
std::string PlainCaption(std::string_view caption);

}  // namespace kelvor
