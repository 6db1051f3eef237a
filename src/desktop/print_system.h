#pragma once

#include <QString>
#include <QStringList>
#include <optional>
#include <string>

#include "platform/file_system.h"

namespace kelvor {

/// A file on its way to a printer.
struct PrintJob {
    QString printer;
    QString title;
    int copies = 1;
    int firstPage = 0;  // 0: all pages
    int lastPage = 0;
    bool bothSides = false;  // bound at the long edge
    Path file = {};
};

/// What takes files to printers.
class PrintSystem {
  public:
    PrintSystem() = default;
    PrintSystem(const PrintSystem&) = delete;
    PrintSystem& operator=(const PrintSystem&) = delete;
    virtual ~PrintSystem() = default;

    [[nodiscard]] virtual bool HasPrinter() const = 0;

    /// The reason if the file is not taken; nothing if it is.
    [[nodiscard]] virtual std::optional<std::string> Send(const PrintJob& job) = 0;
};

/// The printers of the system, to which the command lp sends files.
class LpPrintSystem : public PrintSystem {
  public:
    explicit LpPrintSystem(QString command = QStringLiteral("lp")) : command_(std::move(command)) {}

    [[nodiscard]] bool HasPrinter() const override;
    [[nodiscard]] std::optional<std::string> Send(const PrintJob& job) override;

  private:
    QString command_;
};

}  // namespace kelvor
