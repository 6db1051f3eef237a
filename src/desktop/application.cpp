#include "desktop/application.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QFontDatabase>
#include <QMessageBox>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <optional>

#include "desktop/qt_text.h"
#include "desktop/version_option.h"
#include "desktop/window_style.h"
#include "platform/executable_folder.h"
#include "shell/home_choice.h"

namespace kelvor {

namespace {

constexpr int kStatusStopped = 1;

constexpr std::chrono::seconds kTimeBetweenFlushes{30};

int Stopped(const std::string& reason) {
    std::fprintf(stderr, "kelvor: the program stopped: %s\n", reason.c_str());
    return kStatusStopped;
}

/// The home that an option names, or else the one that the program finds or makes. If none can be made that
/// is told in a window: who starts programs by a click sees no terminal.
std::optional<Home> FindHome(const QString& named) {
    if (!named.isEmpty()) {
        const Path folder = std::filesystem::absolute(Path(FromQt(named)));
        return Home{folder, folder};
    }
    NativeFileSystem files;
    try {
        return HomeChoice(files, ExecutableFolder(), FindUserFolders(files, OwnEnvironment())).ForWindow();
    } catch (const FileError& failure) {
        QMessageBox::critical(nullptr, QStringLiteral("Kelvor"), ToQt(failure.what()));
        return std::nullopt;
    }
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

DesktopProgram::DesktopProgram(const Home& home, std::unique_ptr<PrintSystem> printers)
    : fonts_(std::async(std::launch::async, [] { QFontDatabase::families(); })),
      language_(files_, home),
      dialogs_(std::move(printers)),
      program_({files_, clock_, dialogs_, components_, ToolkitLibraries()}, home) {}

bool DesktopProgram::Start(const std::string& project) {
    if (program_.Start(project) == StartResult::Stopped) return false;
    WindowStyle::Use();
    window_ = std::make_unique<MainWindow>(program_);
    dialogs_.SetParent(window_.get());
    window_->show();
    QObject::connect(&disk_, &QTimer::timeout, window_.get(), [this] { program_.BringToDisk(); });
    disk_.start(kTimeBetweenFlushes);
    handOver_ =
        std::make_unique<HandOverBox>(program_.state().home.HandOverFile(),
                                      [this](const std::string& path) { window_->OpenHandedOver(path); });
    return true;
}

int RunDesktop(int argc, char** argv) {
    if (argc > 0 && TellVersion(argc, argv)) return 0;
    const QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Kelvor"));
    QApplication::setDesktopFileName(QStringLiteral("kelvor"));

    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Pavement design by the 1993 AASHTO Guide"));
    parser.addHelpOption();
    const QCommandLineOption versionOption(
        {QString(u'v'), QStringLiteral("version")},
        QStringLiteral("Tell version, commit and libraries, and do nothing else"));
    parser.addOption(versionOption);
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
        auto folders = FindHome(home);
        if (!folders) return kStatusStopped;
        folders->attended = true;
        return RunProgram(*folders, files.isEmpty() ? std::string() : FromQt(files.constFirst()));
    } catch (const std::exception& failure) {
        return Stopped(failure.what());
    }
}

}  // namespace kelvor
