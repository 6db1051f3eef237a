#pragma once

#include <QWidget>
#include <optional>

#include "reports/document/page_setup.h"

namespace kelvor {

/// Asks for paper and margins. Nothing if the user does not want another setup.
std::optional<PageSetup> AskPageSetup(QWidget* parent, const PageSetup& now);

}  // namespace kelvor
