#pragma once

#include <QIcon>

namespace kelvor {

/// The program's sign: a section of a pavement, drawn in the sizes that desktops use.
QIcon AppIcon();

}  // namespace kelvor
