// Shows the program's main window, says so, and ends. With --timings it goes on: how long a screen takes to
// open, and how long a key takes until the field that it was typed into is painted again, in milliseconds.
//
// Usage: kelvor-bench-window HOME [--timings]

#include <QApplication>
#include <QKeyEvent>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <vector>

#include "desktop/application.h"
#include "when_shown.h"

namespace {

using namespace kelvor;
using Clock = std::chrono::steady_clock;

constexpr int kRepetitions = 41;
constexpr const char* kScreen = "DeF";

template <typename Act>
double Milliseconds(Act act) {
    const auto start = Clock::now();
    act();
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

double Median(std::vector<double> values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

void OpenScreen(MainWindow& window) {
    window.door().Raise({UserEvent::Kind::OpenForm, kScreen});
    QApplication::processEvents();  // paints it
}

double TimeOpening(MainWindow& window) {
    std::vector<double> times;
    for (int i = 0; i < kRepetitions; ++i) {
        times.push_back(Milliseconds([&] { OpenScreen(window); }));
        window.door().Raise({UserEvent::Kind::CloseForm, kScreen});
        QApplication::processEvents();
    }
    return Median(times);
}

double TimeKeys(MainWindow& window) {
    OpenScreen(window);
    QWidget* field = window.CurrentView()->FindWidget(window.CurrentView()->form()->focus->name);
    std::vector<double> times;
    for (int i = 0; i < kRepetitions; ++i) {
        times.push_back(Milliseconds([&] {
            QKeyEvent press(QEvent::KeyPress, Qt::Key_5, Qt::NoModifier, QStringLiteral("5"));
            QCoreApplication::sendEvent(field, &press);
            QApplication::processEvents();  // paints it
        }));
    }
    return Median(times);
}

}  // namespace

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    if (argc < 2) return 2;
    DesktopProgram desktop({argv[1], argv[1]});
    if (!desktop.Start("")) return 1;
    const bool timings = argc > 2 && std::strcmp(argv[2], "--timings") == 0;
    const bench::WhenShown answer(desktop.window(), [&] {
        std::puts("shown");
        if (timings) {
            std::printf("%.6f\n", TimeOpening(desktop.window()));
            std::printf("%.6f\n", TimeKeys(desktop.window()));
        }
    });
    return QApplication::exec();
}
