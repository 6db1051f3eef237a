#include "desktop/window_settings.h"

#include "desktop/preview/page_setup_dialog.h"
#include "desktop/qt_text.h"

namespace kelvor {

namespace {

const QString kGeometry = QStringLiteral("Window/Geometry");
const QString kState = QStringLiteral("Window/State");
const QString kOverview = QStringLiteral("Window/Overview");
const QString kLanguage = QStringLiteral("Window/Language");
const QString kMetric = QStringLiteral("NewProjects/Metric");

const QString kPaper = QStringLiteral("Reports/Paper");
const QString kMargin = QStringLiteral("Reports/MarginPoints");
const QString kA4 = QStringLiteral("A4");

QString SizeKey(const std::string& screen) { return QStringLiteral("Screens/") + ToQt(screen); }

}  // namespace

WindowSettings::WindowSettings(const Path& file) : settings_(ToQt(file.string()), QSettings::IniFormat) {}

QByteArray WindowSettings::Geometry() const { return settings_.value(kGeometry).toByteArray(); }
void WindowSettings::KeepGeometry(const QByteArray& geometry) { settings_.setValue(kGeometry, geometry); }

QByteArray WindowSettings::State() const { return settings_.value(kState).toByteArray(); }
void WindowSettings::KeepState(const QByteArray& state) { settings_.setValue(kState, state); }

bool WindowSettings::Metric() const { return settings_.value(kMetric, false).toBool(); }
void WindowSettings::KeepMetric(bool metric) { settings_.setValue(kMetric, metric); }

std::string WindowSettings::Language() const { return FromQt(settings_.value(kLanguage).toString()); }
bool WindowSettings::KeepLanguage(const std::string& code) {
    settings_.setValue(kLanguage, ToQt(code));
    settings_.sync();
    return settings_.status() == QSettings::NoError;
}

/// A sheet that is not known, and margins that leave no room, are those of a new home.
PageSetup WindowSettings::Pages() const {
    PageSetup setup;
    if (settings_.value(kPaper).toString() == kA4) setup.paper = Paper::A4;
    const double margin = settings_.value(kMargin, setup.marginPoints).toDouble();
    if (margin >= kLeastMarginPoints && margin <= kMostMarginPoints) setup.marginPoints = margin;
    return setup;
}

void WindowSettings::KeepPages(const PageSetup& setup) {
    settings_.setValue(kPaper, setup.paper == Paper::A4 ? kA4 : QStringLiteral("Letter"));
    settings_.setValue(kMargin, setup.marginPoints);
}

bool WindowSettings::Overview() const { return settings_.value(kOverview, true).toBool(); }
void WindowSettings::KeepOverview(bool wanted) { settings_.setValue(kOverview, wanted); }

QSize WindowSettings::SizeOf(const std::string& screen) const {
    return settings_.value(SizeKey(screen)).toSize();
}

void WindowSettings::KeepSize(const std::string& screen, QSize size) {
    settings_.setValue(SizeKey(screen), size);
}

}  // namespace kelvor
