#pragma once

#include <string>
#include <vector>

#include "desktop/main_window.h"

namespace kelvor::bench {

/// The median of some times; in their unit.
double Median(std::vector<double> times);

/// How long a screen takes from the event that opens it until it is painted, in milliseconds: the median of
/// some openings.
double TimeOpening(MainWindow& window, const std::string& screen);

/// The screen that takes longest to open.
struct Slowest {
    std::string screen;
    double milliseconds = 0.0;
};

/// Of the screens of existing pavements, overlays, deflection tests and costs, with their helps, charts and
/// cross sections.
Slowest TimeSlowestOpening(MainWindow& window);

/// How long 300 deflection tests of a slab take to be pasted from a spreadsheet and shown, in milliseconds.
double TimePaste(MainWindow& window);

/// How long all reports of a project take to be made and looked at one after the other, in milliseconds.
double TimePreviews(MainWindow& window, const std::string& project);

}  // namespace kelvor::bench
