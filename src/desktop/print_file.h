#pragma once

#include <QWidget>
#include <optional>
#include <string>

#include "desktop/print_system.h"
#include "platform/dialogs.h"

namespace kelvor {

/// Prints a PDF file with the dialog of the system. The file itself goes to the printer, so that what was
/// seen is what is printed; a printer that is a PDF file gets a copy. Without a printer no dialog comes up.
/// The reason if it cannot be printed; nothing if it was, or if the user does not want to.
std::optional<std::string> PrintFile(QWidget* parent, const PrintRequest& request, PrintSystem& system);

}  // namespace kelvor
