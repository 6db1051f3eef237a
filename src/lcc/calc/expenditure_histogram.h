#pragma once

#include <array>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "calc/calc_context.h"
#include "platform/real.h"

namespace kelvor {

/// What both pavements spend in one year, in money of today.
struct YearOfExpenditure {
    int year = 0;
    std::array<std::optional<Real>, 2> amounts;  // A, B; nothing beyond the period of a pavement
};

/// Told of what the work is at: a sentence.
using StepReport = std::function<void(const std::string& step)>;

/// The expenditures year by year, from year 0 to the end of the longer analysis period, at most to year 100.
/// Nothing if both periods are 0.
///
/// Year 0 shows the initial costs, `ItemTotal2`, alone. A later year within the period of a pavement shows
/// what its rows 1 to 35 of maintenance and rehabilitation spend in it, and the whole cost of its row "Annual
/// Maintenance": that of the whole period, in each year. A row counts by the year that it shows; one without
/// a year between 0 and 100 is passed over, and so is a sum that no double can hold. Each row and each
/// year that counts is reported.
std::optional<std::vector<YearOfExpenditure>> BuildHistogram(const CalcContext& context,
                                                             const StepReport& report);

}  // namespace kelvor
