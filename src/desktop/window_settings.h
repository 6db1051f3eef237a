#pragma once

#include <QByteArray>
#include <QSettings>
#include <QSize>
#include <string>

#include "platform/file_system.h"
#include "reports/document/page_setup.h"

namespace kelvor {

/// How the windows were left, in a file of the home: a convenience. A file that cannot be read is none, and
/// one that cannot be written is not.
class WindowSettings {
  public:
    explicit WindowSettings(const Path& file);

    /// Size and place of the main window, as the toolkit writes them; empty if they were never kept.
    [[nodiscard]] QByteArray Geometry() const;
    void KeepGeometry(const QByteArray& geometry);

    /// The tool bar and what else the toolkit keeps of the window.
    [[nodiscard]] QByteArray State() const;
    void KeepState(const QByteArray& state);

    /// Whether new projects begin in metric units.
    [[nodiscard]] bool Metric() const;
    void KeepMetric(bool metric);

    /// The code of the language that the user has chosen; empty: that of his system.
    [[nodiscard]] std::string Language() const;
    /// False if it cannot be written.
    bool KeepLanguage(const std::string& code);

    /// The sheet of the reports.
    [[nodiscard]] PageSetup Pages() const;
    void KeepPages(const PageSetup& setup);

    [[nodiscard]] bool Overview() const;
    void KeepOverview(bool wanted);

    /// The size that the user gave the window of a screen; empty if he gave it none.
    [[nodiscard]] QSize SizeOf(const std::string& screen) const;
    void KeepSize(const std::string& screen, QSize size);

  private:
    QSettings settings_;
};

}  // namespace kelvor
