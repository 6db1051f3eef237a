#pragma once

#include <QPalette>

namespace kelvor::test {

/// The two kinds of desktop that Kelvor is looked at on.
QPalette LightPalette();
QPalette DarkPalette();

/// Bright letters on black, as desktops offer it to those who see little.
QPalette HighContrastPalette();

}  // namespace kelvor::test
