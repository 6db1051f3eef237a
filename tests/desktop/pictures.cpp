// Makes pictures of the windows: of each script below docs/pictures/scripts, in both unit systems, light and
// dark. A script with a line `# picture: menu MenuFile`, `# picture: dialog` or
// `# picture: help` shows that menu, the first dialog that comes up or the window of the help, and the units
// that it has at its end. One with a line `# sample: NAME` goes on where that sample ends.
// With a size or a font the pictures are of a window on such a screen, in English units alone.

#include <SQLiteCpp/SQLiteCpp.h>
#include <fmt/format.h>

#include <QApplication>
#include <QCommandLineParser>
#include <QPainter>
#include <QPixmap>
#include <QSize>
#include <QStyleOptionTitleBar>
#include <algorithm>
#include <cstdio>
#include <iostream>
#include <optional>
#include <sstream>
#include <stdexcept>
#include <vector>

#include "console/script/output.h"
#include "console/script/runner.h"
#include "desktop/application.h"
#include "desktop/dialog_responder.h"
#include "desktop/palettes.h"
#include "desktop/window_driver.h"
#include "support/test_home.h"

namespace kelvor::test {

constexpr const char* kUsualDpi = "96";

namespace {

struct Look {
    const char* name;
    QPalette palette;
};

/// What is asked for.
struct Order {
    Path folder;
    std::vector<std::string> scripts;  // by name; empty: all
    QSize size;                        // of the window; empty: as it starts
    QString suffix;                    // of the pictures' names
};

/// A script may say where it switches: `units {UNITS}`. One that does not is switched at its end.
std::string WithUnits(std::string script, const std::string& units) {
    const std::string mark = "{UNITS}";
    const std::size_t at = script.find(mark);
    return at == std::string::npos ? script : script.replace(at, mark.size(), units);
}

/// The rest of the line of a script that begins with a mark; empty if there is none.
std::string MarkedLine(const std::string& script, const std::string& mark) {
    const std::size_t at = script.find(mark);
    if (at == std::string::npos) return {};
    const std::size_t start = at + mark.size();
    return script.substr(start, script.find('\n', start) - start);
}

/// What a script's picture shows: "menu NAME", "dialog", "help", or nothing for the main window.
std::string SubjectOf(const std::string& script) { return MarkedLine(script, "# picture: "); }

/// A script goes on from the end of the sample that it names.
std::string AfterSample(const std::string& script) {
    const std::string sample = MarkedLine(script, "# sample: ");
    if (sample.empty()) return script;
    return ReadFile(KELVOR_SOURCE_FOLDER "/data/samples/" + sample + ".kvs") + script;
}

/// The frame that a window manager would draw round a dialog.
QPixmap Framed(const QDialog& dialog, const QPixmap& content) {
    const QStyle& style = *QApplication::style();
    QStyleOptionTitleBar bar;
    bar.text = dialog.windowTitle();
    bar.titleBarFlags =
        Qt::Window | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint | Qt::WindowTitleHint;
    bar.titleBarState = Qt::WindowActive;
    bar.state = QStyle::State_Active | QStyle::State_Enabled;
    bar.subControls = QStyle::SC_TitleBarLabel | QStyle::SC_TitleBarCloseButton;
    bar.palette = QApplication::palette();
    const int height = style.pixelMetric(QStyle::PM_TitleBarHeight, &bar);
    bar.rect = QRect(0, 0, content.width() + 2, height);

    QPixmap framed(bar.rect.width(), height + content.height() + 1);
    framed.fill(bar.palette.color(QPalette::Dark));
    QPainter painter(&framed);
    style.drawComplexControl(QStyle::CC_TitleBar, &bar, &painter);
    painter.drawPixmap(1, height, content);
    return framed;
}

QPixmap WithPopup(QWidget& window, const QPixmap& popup, const QPoint& place) {
    QPixmap picture = window.grab();
    QPainter(&picture).drawPixmap(place, popup);
    return picture;
}

QPixmap WithDialog(QWidget& window, QDialog& dialog) {
    const QPixmap framed = Framed(dialog, dialog.grab());
    const QPoint middle((window.width() - framed.width()) / 2, (window.height() - framed.height()) / 2);
    return WithPopup(window, framed, middle);
}

QPixmap WithMenu(MainWindow& window, const std::string& name) {
    auto* menu = window.findChild<QMenu*>(QString::fromStdString(name));
    if (menu == nullptr) throw std::runtime_error("there is no menu " + name);
    auto* bar = window.findChild<QMenuBar*>();
    bar->setActiveAction(menu->menuAction());
    QApplication::processEvents();
    const QPoint place = bar->mapTo(&window, bar->actionGeometry(menu->menuAction()).bottomLeft());
    QPixmap picture = WithPopup(window, menu->grab(), place);
    menu->close();
    return picture;
}

/// A program whose folder has the same name each time, since its path can be seen, and which has recent
/// files.
struct PictureHome {
    PictureHome() : home(std::filesystem::temp_directory_path() / "Kelvor") {
        std::filesystem::copy(Path(KELVOR_HOME_FOLDER) / "Help", home / "Help");
        SQLite::Database catalogue((home / "DataBase/Kelvor.mdb").string(), SQLite::OPEN_READWRITE);
        catalogue.exec(
            "UPDATE RecentFiles SET OpenDate = datetime(2461000.5 - SortOrder), FileName = CASE SortOrder "
            "WHEN 0 THEN '/home/engineer/Projects/Route 12, km 4 to 9.kvr' "
            "WHEN 1 THEN '/home/engineer/Projects/Airport Road.kvr' END");
    }

    TestHome home;
};

/// Runs a script and takes its picture.
class PictureRun {
  public:
    PictureRun(const QPalette& palette, QSize size)
        : output_(printed_), responder_(output_), desktop_(home_.home.home()) {
        QApplication::setPalette(palette);
        if (!desktop_.Start("")) throw std::runtime_error(printed_.str());
        desktop_.window().resize(size.isEmpty() ? desktop_.window().StartSize() : size);
        driver_.emplace(desktop_, responder_);
    }

    /// The window at the end of a script.
    QPixmap Of(const std::string& script) {
        const std::string subject = SubjectOf(script);
        QPixmap dialog;
        if (subject == "dialog") {
            responder_.whileDialogIsUp = [&](QDialog& shown) {
                dialog = WithDialog(desktop_.window(), shown);
            };
        }
        std::istringstream commands(script);
        if (RunScript(commands, *driver_, output_, std::cerr) != ScriptEnd::Done) {
            throw std::runtime_error("a script does not run through: " + printed_.str());
        }
        QApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        if (subject.empty()) return desktop_.window().grab();
        if (subject == "help") return desktop_.helpWindow()->grab();
        if (subject.rfind("menu ", 0) == 0) return WithMenu(desktop_.window(), subject.substr(5));
        if (dialog.isNull()) throw std::runtime_error("no dialog came up: " + printed_.str());
        return dialog;
    }

  private:
    PictureHome home_;
    std::ostringstream printed_;
    PlainOutput output_;
    DialogResponder responder_;
    DesktopProgram desktop_;
    std::optional<WindowDriver> driver_;
};

void Save(const QPixmap& picture, const Path& file) {
    if (!picture.save(QString::fromStdString(file.string()), "PNG", 0)) {
        throw std::runtime_error("cannot write " + file.string());
    }
    std::puts(file.filename().c_str());
}

/// Of a script that switches to a unit system at its end, if it names one.
void TakePicture(const Order& order, const Look& look, const std::string& script, const std::string& name) {
    const std::string file = fmt::format("{}-{}{}.png", name, look.name, order.suffix.toStdString());
    Save(PictureRun(look.palette, order.size).Of(script), order.folder / file);
}

void TakePictures(const Order& order, const Look& look, const Path& script) {
    const std::string text = AfterSample(ReadFile(script));
    const std::string name = script.stem().string();
    if (!SubjectOf(text).empty()) return TakePicture(order, look, text, name);
    for (const char* units : {"english", "metric"}) {
        const std::string switched = WithUnits(text, units) + fmt::format("\nunits {}\n", units);
        TakePicture(order, look, switched, fmt::format("{}-{}", name, units));
        if (!order.suffix.isEmpty()) return;
    }
}

int TakePictures(const Order& order) {
    std::filesystem::create_directories(order.folder);
    std::vector<Path> scripts;
    for (const auto& entry :
         std::filesystem::directory_iterator(KELVOR_SOURCE_FOLDER "/docs/pictures/scripts")) {
        const auto& names = order.scripts;
        const bool wanted =
            names.empty() || std::find(names.begin(), names.end(), entry.path().stem()) != names.end();
        if (wanted && entry.path().extension() == ".kvs") scripts.push_back(entry.path());
    }
    std::sort(scripts.begin(), scripts.end());
    for (const Path& script : scripts) {
        for (const Look& look : {Look{"light", LightPalette()}, Look{"dark", DarkPalette()}}) {
            TakePictures(order, look, script);
        }
    }
    return 0;
}

/// `FOLDER [SCRIPT...] [--size WIDTHxHEIGHT] [--points N]`; the size is in pixels, the points are the font's.
Order ReadOrder(const QApplication& application) {
    QCommandLineParser parser;
    const QCommandLineOption size(QStringLiteral("size"), {}, QStringLiteral("WIDTHxHEIGHT"));
    const QCommandLineOption points(QStringLiteral("points"), {}, QStringLiteral("N"));
    parser.addOptions({size, points});
    parser.process(application);
    const QStringList words = parser.positionalArguments();
    if (words.isEmpty()) throw std::runtime_error("usage: kelvor-pictures FOLDER [SCRIPT...] [--size ...]");

    Order order;
    order.folder = words.first().toStdString();
    for (const QString& word : words.mid(1)) order.scripts.push_back(word.toStdString());
    if (parser.isSet(size)) {
        const QStringList sides = parser.value(size).split(u'x');
        order.size = QSize(sides.first().toInt(), sides.last().toInt());
        order.suffix += "-" + parser.value(size);
    }
    if (parser.isSet(points)) {
        QFont font = QApplication::font();
        font.setPointSize(parser.value(points).toInt());
        QApplication::setFont(font);
        order.suffix += "-" + parser.value(points) + "pt";
    }
    if (qgetenv("QT_FONT_DPI") != kUsualDpi) order.suffix += "-" + qgetenv("QT_FONT_DPI") + "dpi";
    return order;
}

}  // namespace
}  // namespace kelvor::test

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    if (!qEnvironmentVariableIsSet("QT_FONT_DPI")) qputenv("QT_FONT_DPI", kelvor::test::kUsualDpi);
    qputenv("LANGUAGE", "C");
    qputenv("HOME", "/home/engineer");  // whose name a file dialog shows
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    const QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    try {
        return kelvor::test::TakePictures(kelvor::test::ReadOrder(application));
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "%s\n", failure.what());
        return 1;
    }
}
