// Shows the program's main window, says so, and ends. With --timings it goes on: how long a screen takes to
// open, and how long a key takes until the field that it was typed into is painted again; then how long a
// grid of 50 rows by 10 columns takes to be painted, and a plain table of the toolkit with the same cells;
// then the screen of overlays, deflection tests, costs and cross sections that takes longest to open, how
// long the paste of a day's deflection tests takes, and how long all reports of a sample take to be previewed
// one after the other. In milliseconds.
//
// Usage: kelvor-bench-window HOME [--timings]

#include <QApplication>
#include <QKeyEvent>
#include <QTableWidget>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <string>
#include <vector>

#include "desktop/application.h"
#include "desktop/grid_view.h"
#include "screen_times.h"
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

void OpenScreen(MainWindow& window) {
    window.door().Raise({UserEvent::Kind::OpenForm, kScreen});
    QApplication::processEvents();  // paints it
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
    QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QCoreApplication::sendEvent(field, &escape);  // drops what was typed: nothing is left to be refused
    window.door().Raise({UserEvent::Kind::CloseForm, kScreen});
    return bench::Median(times);
}

// --- A grid beside a plain table of the toolkit -----------------------------------------------------

constexpr int kGridRows = 50;
constexpr int kGridColumns = 10;
constexpr QSize kTableSize(1200, 1700);

/// The cells of an open project, as a form's grid reads them.
struct GridOfProject {
    explicit GridOfProject(Program& owner) : program(owner) {
        control.kind = ControlKind::Grid;
        control.grid.emplace();
        control.grid->rows = kGridRows;
        for (int i = 0; i < kGridColumns; ++i) {
            GridColumn column;
            column.variable = "D0F";
            column.caption = "Deflection";
            column.picture = "##0.00";
            control.grid->columns.push_back(column);
        }
        for (int row = 1; row <= kGridRows; ++row) {
            owner.state().dbWork.SetCell("D0F", row, 1, {row + 0.25, std::nullopt});
        }
    }

    [[nodiscard]] GridHooks Hooks() const {
        GridHooks hooks;
        hooks.read = [this](int row, const GridColumn& column) {
            return program.CellText(*program.state().formRegistry.Find("TabForm"), row, column);
        };
        hooks.note = [](int, const GridColumn&) { return std::string(); };
        hooks.takesEdit = [](int, const GridColumn&) { return true; };
        hooks.moveTo = [](int, const GridColumn&) {};
        hooks.marked = [] {};
        return hooks;
    }

    Program& program;
    Control control;
};

double TimeRepaints(QTableView& table) {
    table.resize(kTableSize);
    table.show();
    QApplication::processEvents();
    std::vector<double> times;
    for (int i = 0; i < kRepetitions; ++i) {
        times.push_back(Milliseconds([&] { table.viewport()->repaint(); }));
    }
    return bench::Median(times);
}

void FillPlainTable(QTableWidget& table) {
    table.setRowCount(kGridRows);
    table.setColumnCount(kGridColumns);
    for (int row = 0; row < kGridRows; ++row) {
        for (int column = 0; column < kGridColumns; ++column) {
            auto* item = new QTableWidgetItem(QString::number(row + 1.25, 'f', 2));
            item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
            table.setItem(row, column, item);
        }
    }
}

void TimeGrids(Program& program) {
    const GridOfProject cells(program);
    GridView grid(cells.control, cells.Hooks(), nullptr);
    QTableWidget plain;
    FillPlainTable(plain);
    for (int i = 0; i < kGridColumns; ++i) plain.setColumnWidth(i, grid.columnWidth(i));
    std::printf("%.6f\n", TimeRepaints(grid));
    std::printf("%.6f\n", TimeRepaints(plain));
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
            std::printf("%.6f\n", bench::TimeOpening(desktop.window(), kScreen));
            std::printf("%.6f\n", TimeKeys(desktop.window()));
            TimeGrids(desktop.program());
            const bench::Slowest slowest = bench::TimeSlowestOpening(desktop.window());
            std::printf("%s %.6f\n", slowest.screen.c_str(), slowest.milliseconds);
            std::printf("%.6f\n", bench::TimePaste(desktop.window()));
            const Path sample = Path(argv[1]) / "Samples" / "every_report.kvr";
            std::printf("%.6f\n", bench::TimePreviews(desktop.window(), sample.string()));
        }
    });
    return QApplication::exec();
}
