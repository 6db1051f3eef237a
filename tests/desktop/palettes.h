#pragma once

#include <QPalette>

namespace kelvor::test {

/// The two kinds of desktop that Kelvor is looked at on.
QPalette LightPalette();
QPalette DarkPalette();

}  // namespace kelvor::test
