#include "desktop/print_file.h"

#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QProcess>

#include "desktop/qt_text.h"
#include "platform/replace_file.h"

namespace kelvor {

namespace {

/// The command by which files go to printers.
const QString kCommand = QStringLiteral("lp");

/// The largest file that is printed into another one.
constexpr std::size_t kLargestFile = 256U << 20U;

QStringList Arguments(const QPrinter& printer, const PrintRequest& request) {
    QStringList arguments = {QStringLiteral("-d"), printer.printerName(),
                             QStringLiteral("-t"), ToQt(request.title),
                             QStringLiteral("-n"), QString::number(printer.copyCount())};
    if (printer.printRange() == QPrinter::PageRange) {
        arguments << QStringLiteral("-P")
                  << QStringLiteral("%1-%2").arg(printer.fromPage()).arg(printer.toPage());
    }
    if (printer.duplex() == QPrinter::DuplexLongSide) {
        arguments << QStringLiteral("-o") << QStringLiteral("sides=two-sided-long-edge");
    }
    return arguments << QStringLiteral("--") << ToQt(request.file.string());
}

std::optional<std::string> SendToPrinter(const QPrinter& printer, const PrintRequest& request) {
    QProcess process;
    process.start(kCommand, Arguments(printer, request));
    if (!process.waitForFinished(-1)) return FromQt(process.errorString());
    if (process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0) return std::nullopt;
    const QString reason = QString::fromLocal8Bit(process.readAllStandardError()).trimmed();
    return reason.isEmpty() ? std::string("the printer does not take it") : FromQt(reason);
}

std::optional<std::string> CopyTo(const Path& target, const Path& file) {
    try {
        NativeFileSystem files;
        ReplaceFile(files, target, files.Read(file, kLargestFile));
        return std::nullopt;
    } catch (const FileError& failure) {
        return failure.what();
    }
}

}  // namespace

std::optional<std::string> PrintFile(QWidget* parent, const PrintRequest& request) {
    if (QPrinterInfo::availablePrinters().isEmpty()) return "there is no printer here";
    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName(ToQt(request.title));
    QPrintDialog dialog(&printer, parent);
    dialog.setOption(QAbstractPrintDialog::PrintPageRange);
    dialog.setOption(QAbstractPrintDialog::PrintSelection, false);
    if (dialog.exec() != QDialog::Accepted) return std::nullopt;
    if (!printer.outputFileName().isEmpty()) return CopyTo(FromQt(printer.outputFileName()), request.file);
    return SendToPrinter(printer, request);
}

}  // namespace kelvor
