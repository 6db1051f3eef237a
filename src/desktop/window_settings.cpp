#include "desktop/window_settings.h"

#include "desktop/qt_text.h"

namespace kelvor {

namespace {

const QString kGeometry = QStringLiteral("Window/Geometry");
const QString kState = QStringLiteral("Window/State");
const QString kOverview = QStringLiteral("Window/Overview");
const QString kMetric = QStringLiteral("NewProjects/Metric");

QString SizeKey(const std::string& screen) { return QStringLiteral("Screens/") + ToQt(screen); }

}  // namespace

WindowSettings::WindowSettings(const Path& file) : settings_(ToQt(file.string()), QSettings::IniFormat) {}

QByteArray WindowSettings::Geometry() const { return settings_.value(kGeometry).toByteArray(); }
void WindowSettings::KeepGeometry(const QByteArray& geometry) { settings_.setValue(kGeometry, geometry); }

QByteArray WindowSettings::State() const { return settings_.value(kState).toByteArray(); }
void WindowSettings::KeepState(const QByteArray& state) { settings_.setValue(kState, state); }

bool WindowSettings::Metric() const { return settings_.value(kMetric, false).toBool(); }
void WindowSettings::KeepMetric(bool metric) { settings_.setValue(kMetric, metric); }

bool WindowSettings::Overview() const { return settings_.value(kOverview, true).toBool(); }
void WindowSettings::KeepOverview(bool wanted) { settings_.setValue(kOverview, wanted); }

QSize WindowSettings::SizeOf(const std::string& screen) const {
    return settings_.value(SizeKey(screen)).toSize();
}

void WindowSettings::KeepSize(const std::string& screen, QSize size) {
    settings_.setValue(SizeKey(screen), size);
}

}  // namespace kelvor
