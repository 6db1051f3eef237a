#include "desktop/application.h"

#include <QApplication>
#include <QCommandLineParser>
#include <cstdio>
#include <filesystem>

#include "desktop/qt_text.h"
#include "platform/executable_folder.h"
#include "shell/home.h"

namespace kelvor {

namespace {

constexpr int kStatusStopped = 1;

int Stopped(const std::string& reason) {
    std::fprintf(stderr, "kelvor: the program stopped: %s\n", reason.c_str());
    return kStatusStopped;
}

int RunProgram(const Home& home, const std::string& project) {
    if (HandOver(home, project)) return 0;
    DesktopProgram desktop(home);
    if (!desktop.Start(project)) return kStatusStopped;
    const int status = QApplication::exec();
    const std::string& reason = desktop.window().stopReason();
    return reason.empty() ? status : Stopped(reason);
}

}  // namespace

DesktopProgram::DesktopProgram(const Home& home) : program_({files_, clock_, dialogs_, components_}, home) {}

bool DesktopProgram::Start(const std::string& project) {
    if (program_.Start(project) == StartResult::Stopped) return false;
    window_ = std::make_unique<MainWindow>(program_);
    dialogs_.SetParent(window_.get());
    window_->show();
    handOver_ =
        std::make_unique<HandOverBox>(program_.state().home.HandOverFile(),
                                      [this](const std::string& path) { window_->OpenHandedOver(path); });
    return true;
}

int RunDesktop(int argc, char** argv) {
    const QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Kelvor"));
    QApplication::setApplicationVersion(QStringLiteral(KELVOR_VERSION));

    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Pavement design by the 1993 AASHTO Guide"));
    parser.addHelpOption();
    parser.addVersionOption();
    const QCommandLineOption homeOption(
        QStringLiteral("home"),
        QStringLiteral("The program folder: where kvor.ini, DataBase and kvrwork.tpl lie"),
        QStringLiteral("DIR"));
    parser.addOption(homeOption);
    parser.addPositionalArgument(QStringLiteral("project"), QStringLiteral("The project file to open"),
                                 QStringLiteral("[PROJECT.kvr]"));
    parser.process(application);

    const QString home = parser.value(homeOption);
    const QStringList files = parser.positionalArguments();
    try {
        const Path folder =
            home.isEmpty() ? ExecutableFolder() : std::filesystem::absolute(Path(FromQt(home)));
        return RunProgram({folder, folder}, files.isEmpty() ? std::string() : FromQt(files.constFirst()));
    } catch (const std::exception& failure) {
        return Stopped(failure.what());
    }
}

}  // namespace kelvor
