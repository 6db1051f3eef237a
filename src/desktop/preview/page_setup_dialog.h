#pragma once

#include <QWidget>
#include <optional>

#include "reports/document/page_setup.h"

namespace kelvor {

/// The margins that can be asked for: 0.25 to 2 in.
inline constexpr double kLeastMarginPoints = 18.0;
inline constexpr double kMostMarginPoints = 144.0;

/// Asks for paper and margins. Nothing if the user does not want another setup.
std::optional<PageSetup> AskPageSetup(QWidget* parent, const PageSetup& now);

}  // namespace kelvor
