#pragma once

#include <QString>
#include <QWidget>
#include <optional>

#include "platform/file_system.h"
#include "reports/engine.h"

namespace kelvor {

/// Where and as what a report is saved.
struct SaveChoice {
    Path file;
    ReportFormat format = ReportFormat::Pdf;
};

/// Asks where to save a report, with a name to begin with. The ending of the name tells the format; a name
/// without one of the four gets that of the chosen kind of file. Nothing if the user does not want to.
std::optional<SaveChoice> AskWhereToSave(QWidget* parent, const QString& name);

}  // namespace kelvor
