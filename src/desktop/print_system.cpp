#include "desktop/print_system.h"

#include <QPrinterInfo>
#include <QProcess>

#include "desktop/qt_text.h"
#include "desktop/translated_text.h"

namespace kelvor {

namespace {

QStringList Arguments(const PrintJob& job) {
    QStringList arguments = {QStringLiteral("-d"), job.printer,
                             QStringLiteral("-t"), job.title,
                             QStringLiteral("-n"), QString::number(job.copies)};
    if (job.firstPage > 0) {
        arguments << QStringLiteral("-P") << QStringLiteral("%1-%2").arg(job.firstPage).arg(job.lastPage);
    }
    if (job.bothSides) arguments << QStringLiteral("-o") << QStringLiteral("sides=two-sided-long-edge");
    return arguments << QStringLiteral("--") << ToQt(job.file.string());
}

}  // namespace

bool LpPrintSystem::HasPrinter() const { return !QPrinterInfo::availablePrinters().isEmpty(); }

std::optional<std::string> LpPrintSystem::Send(const PrintJob& job) {
    QProcess process;
    process.start(command_, Arguments(job));
    if (!process.waitForFinished(-1)) return FromQt(process.errorString());
    if (process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0) return std::nullopt;
    const QString reason = QString::fromLocal8Bit(process.readAllStandardError()).trimmed();
    return reason.isEmpty() ? Translated("the printer does not take it") : FromQt(reason);
}

}  // namespace kelvor
