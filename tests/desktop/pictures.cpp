// Makes the pictures of the windows that the documents show: each script below docs/pictures/scripts, in both
// unit systems, light and dark.

#include <fmt/format.h>

#include <QApplication>
#include <QPixmap>
#include <algorithm>
#include <cstdio>
#include <iostream>
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
namespace {

struct Look {
    const char* name;
    QPalette palette;
};

/// A script may say where it switches: `units {UNITS}`. One that does not is switched at its end.
std::string WithUnits(std::string script, const std::string& units) {
    const std::string mark = "{UNITS}";
    const std::size_t at = script.find(mark);
    return at == std::string::npos ? script : script.replace(at, mark.size(), units);
}

void TakePicture(const Path& script, const char* units, const Look& look, const Path& folder) {
    const TestHome home;
    std::ostringstream printed;
    PlainOutput output(printed);
    DialogResponder responder(output);
    DesktopProgram desktop(home.home());
    QApplication::setPalette(look.palette);
    if (!desktop.Start("")) throw std::runtime_error(printed.str());
    desktop.window().resize(desktop.window().StartSize());
    WindowDriver driver(desktop, responder);

    std::istringstream commands(WithUnits(ReadFile(script), units));
    if (RunScript(commands, driver, output, std::cerr) != ScriptEnd::Done) {
        throw std::runtime_error(script.string() + " does not run through: " + printed.str());
    }
    driver.ChooseUnits(std::string_view(units) == "metric");
    QApplication::processEvents();
    const std::string name = fmt::format("{}-{}-{}.png", script.stem().string(), units, look.name);
    if (!desktop.window().grab().save(QString::fromStdString((folder / name).string()), "PNG", 0)) {
        throw std::runtime_error("cannot write " + (folder / name).string());
    }
    std::puts(name.c_str());
}

int TakePictures(const Path& folder) {
    std::vector<Path> scripts;
    for (const auto& entry : std::filesystem::directory_iterator(folder / "scripts")) {
        if (entry.path().extension() == ".kvs") scripts.push_back(entry.path());
    }
    std::sort(scripts.begin(), scripts.end());
    for (const Path& script : scripts) {
        for (const Look& look : {Look{"light", LightPalette()}, Look{"dark", DarkPalette()}}) {
            for (const char* units : {"english", "metric"}) TakePicture(script, units, look, folder);
        }
    }
    return 0;
}

}  // namespace
}  // namespace kelvor::test

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_FONT_DPI", "96");
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    const QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    try {
        return kelvor::test::TakePictures(argc > 1 ? argv[1] : KELVOR_SOURCE_FOLDER "/docs/pictures");
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "%s\n", failure.what());
        return 1;
    }
}
