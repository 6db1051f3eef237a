// A window of the toolkit with about as much in it as the program's own shows at its start, and nothing
// behind it: menus, a tool bar, eight tabs in the area of the forms and a start page. Says when it is shown,
// and ends.

#include <QApplication>
#include <QLabel>
#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QStatusBar>
#include <QStyle>
#include <QToolBar>
#include <QVBoxLayout>
#include <array>
#include <cstdio>

#include "when_shown.h"

namespace {

constexpr int kMenus = 7;
constexpr int kEntries = 8;
constexpr int kTabs = 8;
constexpr int kOptions = 12;
constexpr QSize kSize{1280, 800};

constexpr std::array kIcons = {QStyle::SP_FileIcon,           QStyle::SP_DirOpenIcon,
                               QStyle::SP_DialogSaveButton,   QStyle::SP_ArrowBack,
                               QStyle::SP_ArrowForward,       QStyle::SP_DialogResetButton,
                               QStyle::SP_FileDialogInfoView, QStyle::SP_DialogHelpButton};

void AddMenus(QMainWindow& window) {
    for (int i = 0; i < kMenus; ++i) {
        QMenu* menu = window.menuBar()->addMenu(QStringLiteral("Menu %1").arg(i));
        for (int j = 0; j < kEntries; ++j) menu->addAction(QStringLiteral("Entry %1").arg(j));
    }
    QToolBar* tools = window.addToolBar(QStringLiteral("Tools"));
    for (const QStyle::StandardPixmap icon : kIcons)
        tools->addAction(window.style()->standardIcon(icon), QStringLiteral("Tool"));
    window.statusBar()->showMessage(QStringLiteral("Ready"));
}

QTabWidget* MakeTabs() {
    auto* tabs = new QTabWidget;
    for (int i = 0; i < kTabs; ++i) {
        auto* page = new QWidget;
        auto* column = new QVBoxLayout(page);
        column->addWidget(new QLabel(QStringLiteral("Page %1").arg(i)));
        for (int j = 0; j < kOptions; ++j) {
            const QString text = QStringLiteral("Choice %1").arg(j);
            if (i == 0) {
                column->addWidget(new QPushButton(text));
            } else {
                column->addWidget(new QRadioButton(text));
            }
        }
        tabs->addTab(page, QStringLiteral("Tab %1").arg(i));
    }
    return tabs;
}

}  // namespace

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    QMainWindow window;
    AddMenus(window);
    auto* area = new QMdiArea;
    area->addSubWindow(MakeTabs(), Qt::SubWindow | Qt::FramelessWindowHint)->showMaximized();
    window.setCentralWidget(area);
    window.resize(kSize);
    window.show();
    const kelvor::bench::WhenShown answer(window, [] { std::puts("shown"); });
    return QApplication::exec();
}
