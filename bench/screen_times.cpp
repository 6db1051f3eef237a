#include "screen_times.h"

#include <QApplication>
#include <QClipboard>
#include <QKeyEvent>
#include <algorithm>
#include <chrono>
#include <stdexcept>
#include <utility>
#include <vector>

#include "desktop/form_view.h"

namespace kelvor::bench {

namespace {

using Clock = std::chrono::steady_clock;

constexpr int kRepetitions = 5;
constexpr int kTests = 300;
constexpr int kReportsTab = 5;
constexpr std::size_t kReports = 14;

const char* const kScreens[] = {"ExF",       "ExR",     "ExC",     "SNHelp", "SNCHELP", "FjcHelp", "OvAA",
                                "OvAFP",     "OvAP",    "OvAAP",   "OvBP",   "OvUP",    "OvWT",    "ReDfF",
                                "ReDfR",     "ReDfC",   "LcA1",    "LcA1_2", "LcA1_3",  "LcA1_4",  "LcS",
                                "CostChart", "Histogr", "Graphs",  "DeFCS",  "DeRCS",   "DeSCS",   "OvAACS",
                                "OvAFPCS",   "OvAPCS",  "OvAAPCS", "OvBPCS", "OvUPCS",  "OvWTCS"};

template <typename Act>
double Milliseconds(Act act) {
    const auto start = Clock::now();
    act();
    QApplication::processEvents();  // paints it
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

void Raise(MainWindow& window, UserEvent::Kind kind, const std::string& name, int number = 0) {
    window.door().Raise({kind, name, {}, number});
}

/// What the screens cannot do without, so that none of them asks or complains.
void Prepare(MainWindow& window) {
    ProjectStore& store = window.door().program().state().dbWork;
    for (const auto& [name, value] : {std::pair{"Radius", 5.9},
                                      {"Poisson", 0.15},
                                      {"EXISTDEPTH", 9.0},
                                      {"SBD", 6.0},
                                      {"DEPTH", 9.5},
                                      {"BOLDEPTH", 3.0},
                                      {"UBOLDEPTH", 8.0},
                                      {"ACCSTHICK", 6.0},
                                      {"WTDEPTH", 7.0},
                                      {"DiscountRate", 4.0},
                                      {"AnalysisPeriodA", 100.0},
                                      {"AnalysisPeriodB", 100.0}}) {
        store.SetVar(name, value);
    }
    store.SetVarDim("ItemTotal2", 1, 1, 5e6);
    store.SetVarDim("ItemTotal2", 1, 2, 4e6);
}

/// Another load each time, so that every result is another one.
QString BlockOfTests(int load) {
    QString block;
    for (int row = 1; row <= kTests; ++row) {
        block += QStringLiteral("%1\t4.5\t3.8\t3.0\t2.2\n").arg(load + row);
    }
    return block;
}

void CheckPaste(MainWindow& window, int load) {
    const ProjectStore& store = window.door().program().state().dbWork;
    const bool last = store.GetVarDim("NDTLOAD", kTests, 1) == static_cast<double>(load + kTests);
    if (!last || store.GetVarDim("STATK", kTests, 1) == 0.0) throw std::runtime_error("nothing is pasted");
}

}  // namespace

double Median(std::vector<double> times) {
    const auto middle = times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2);
    std::nth_element(times.begin(), middle, times.end());
    return *middle;
}

double TimeOpening(MainWindow& window, const std::string& screen) {
    std::vector<double> times;
    for (int i = 0; i < kRepetitions; ++i) {
        times.push_back(Milliseconds([&] { Raise(window, UserEvent::Kind::OpenForm, screen); }));
        Raise(window, UserEvent::Kind::CloseForm, screen);
        QApplication::processEvents();
    }
    return Median(times);
}

Slowest TimeSlowestOpening(MainWindow& window) {
    Prepare(window);
    Slowest slowest;
    for (const char* screen : kScreens) {
        const double milliseconds = TimeOpening(window, screen);
        if (milliseconds > slowest.milliseconds) slowest = {screen, milliseconds};
    }
    return slowest;
}

double TimePaste(MainWindow& window) {
    Prepare(window);
    Raise(window, UserEvent::Kind::OpenForm, "ReDfR");
    Raise(window, UserEvent::Kind::MoveToCell, "NDTLOAD", 1);
    QApplication::processEvents();
    QWidget* grid = window.CurrentView()->FindWidget("Grid");
    std::vector<double> times;
    for (int i = 0; i < kRepetitions; ++i) {
        const int load = 9000 + i;
        QApplication::clipboard()->setText(BlockOfTests(load));
        times.push_back(Milliseconds([&] {
            QKeyEvent press(QEvent::KeyPress, Qt::Key_V, Qt::ControlModifier);
            QCoreApplication::sendEvent(grid, &press);
        }));
        CheckPaste(window, load);
    }
    return Median(times);
}

double TimePreviews(MainWindow& window, const std::string& project) {
    const std::pair<const char*, std::vector<const char*>> categories[] = {
        {"rbND", {"rbNDopR", "rbNDopF"}},
        {"rbOV", {"rbOVopBP", "rbOVopUP", "rbOVopWT", "rbOVopAFP", "rbOVopAA", "rbOVopAP", "rbOVopAAP"}},
        {"rbTr", {"rbTRopTrAx", "rbTRopTrVe", "rbTRopTrTr"}},
        {"rbCost", {}}};
    window.door().Raise({UserEvent::Kind::OpenFile, {}, project});
    Raise(window, UserEvent::Kind::SwitchTab, {}, kReportsTab);
    std::size_t shown = 0;
    double all = 0.0;
    for (const auto& [option, boxes] : categories) {
        Raise(window, UserEvent::Kind::Choose, option);
        for (const char* box : boxes) Raise(window, UserEvent::Kind::Choose, box);
        all += Milliseconds([&] { Raise(window, UserEvent::Kind::Press, "Command10"); });
        const std::size_t made = window.door().program().state().reports.previews().size();
        for (std::size_t i = 1; i < made; ++i)
            all += Milliseconds([&] { Raise(window, UserEvent::Kind::Press, "NextRep"); });
        shown += made;
        Raise(window, UserEvent::Kind::Press, "Close");
    }
    if (shown != kReports) throw std::runtime_error("not every report is shown");
    return all;
}

}  // namespace kelvor::bench
