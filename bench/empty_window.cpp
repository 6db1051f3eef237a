// The least that a program with a window could do: shows an empty one, says so, and ends.

#include <QApplication>
#include <QMainWindow>
#include <cstdio>

#include "when_shown.h"

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    QMainWindow window;
    window.show();
    const kelvor::bench::WhenShown answer(window, [] { std::puts("shown"); });
    return QApplication::exec();
}
