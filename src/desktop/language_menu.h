#pragma once

#include <QMenu>

#include "desktop/window_settings.h"
#include "shell/process_state.h"

namespace kelvor {

/// A menu in the menu View of the languages in which Kelvor speaks. The choice is kept, and holds from the
/// next start on; a box says so.
void AddLanguageMenu(QMenu& view, WindowSettings& settings, ProcessState& state);

}  // namespace kelvor
