#pragma once

#include <string>
#include <string_view>

#include "forms/form_type.h"
#include "forms/screen_context.h"

namespace kelvor {

// What an event does, in the words that stand behind Undo.

/// "change of Reliability", by the catalogue's name of a variable; with the row of a grid, if one is given,
/// "change of Thickness, row 3".
std::string ChangeOf(const ScreenContext& context, std::string_view variable, int row = 0);

/// "paste of 30 tests", "paste of 1 row".
std::string PasteOf(std::size_t count, const RowName& rows);

/// "emptying of 12 cells".
std::string EmptyingOf(std::size_t cells);

/// The caption of a button or an option, without the mark of its access key.
std::string PlainCaption(std::string_view caption);

}  // namespace kelvor
