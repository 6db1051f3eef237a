#include "desktop/print_file.h"

#include <QPrintDialog>
#include <QPrinter>

#include "desktop/qt_text.h"
#include "desktop/translated_text.h"
#include "platform/replace_file.h"

namespace kelvor {

namespace {

/// The largest file that is printed into another one.
constexpr std::size_t kLargestFile = 256U << 20U;

PrintJob JobOf(const QPrinter& printer, const PrintRequest& request) {
    PrintJob job{printer.printerName(), ToQt(request.title), printer.copyCount()};
    if (printer.printRange() == QPrinter::PageRange) {
        job.firstPage = printer.fromPage();
        job.lastPage = printer.toPage();
    }
    job.bothSides = printer.duplex() == QPrinter::DuplexLongSide;
    job.file = request.file;
    return job;
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

std::optional<std::string> PrintFile(QWidget* parent, const PrintRequest& request, PrintSystem& system) {
    if (!system.HasPrinter()) return Translated("there is no printer here");
    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName(ToQt(request.title));
    QPrintDialog dialog(&printer, parent);
    dialog.setOption(QAbstractPrintDialog::PrintPageRange);
    dialog.setOption(QAbstractPrintDialog::PrintSelection, false);
    if (dialog.exec() != QDialog::Accepted) return std::nullopt;
    if (!printer.outputFileName().isEmpty()) return CopyTo(FromQt(printer.outputFileName()), request.file);
    return system.Send(JobOf(printer, request));
}

}  // namespace kelvor
