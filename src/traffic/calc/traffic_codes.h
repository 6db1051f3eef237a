#pragma once

#include <array>

namespace kelvor {

/// What the numbers in the cells of the traffic mean. Projects hold them, so a code never changes.

/// `TrPer`: the period in which axles and vehicles are counted. Any other code counts as a year.
inline constexpr int kCountedByDay = 1;
inline constexpr int kCountedByMonth = 2;
inline constexpr int kCountedByYear = 3;

/// The words of the periods, in the order of their codes from 1.
inline constexpr std::array kPeriodWords = {"Day", "Month", "Year"};

/// How many periods of the count a year has: days of the mean Julian year, and months.
inline constexpr double kDaysOfYear = 365.25;
inline constexpr double kMonthsOfYear = 12.0;

/// `TRFACTYPE`: whether the counts are those of the design lane or of the whole road. Any other code counts
/// as the design lane.
inline constexpr int kDesignLane = 1;
inline constexpr int kTotalTraffic = 2;

/// `TRWAY`: whether counts of the whole road are of one direction or of both. Any other code counts as one.
inline constexpr int kOneWay = 1;
inline constexpr int kTwoWay = 2;

/// The words of the types of axle groups, in the order of their codes from 1. The code is the number of axles
/// in the group, L2 of the load equivalency equations (1993 AASHTO Guide, Appendix D; 1986 Guide, Volume 2,
/// Appendix MM); 0 stands for no axle.
inline constexpr std::array kAxleTypeWords = {"Single", "Tandem", "Tridem"};

/// The axles of a class of vehicles, by the numbers that end the names of their cells: the type `AT51` and
/// the load `AW51` of axle 51, in kips on the whole group. The last one also ends the name of the count, as
/// in `NA53`: vehicles of the class in one period.
struct VehicleAxles {
    int first;
    int last;
};

/// The classes, in the order in which a screen shows them.
inline constexpr std::array kVehicleAxles = {VehicleAxles{51, 53}, VehicleAxles{54, 56},
                                             VehicleAxles{57, 59}, VehicleAxles{60, 62},
                                             VehicleAxles{63, 65}, VehicleAxles{66, 70}};

}  // namespace kelvor
