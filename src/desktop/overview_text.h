#pragma once

#include <QString>
#include <string>
#include <vector>

#include "forms/overview_line.h"

namespace kelvor {

/// A line of the overview in words.
struct OverviewRow {
    std::string screen;  // the name of the screen that it leads to
    QString title;
    QString results;  // one a line, each with its unit
    QString state;    // whether the numbers satisfy the equation; empty if the screen has none

    bool operator==(const OverviewRow& other) const = default;
};

std::vector<OverviewRow> RowsOf(const std::vector<OverviewLine>& lines);

/// Rows as lines of text whose parts are divided by tabs, with a head, for a spreadsheet or a letter.
QString TextOf(const std::vector<OverviewRow>& rows);

/// The same as a table for programs that write.
QString HtmlOf(const std::vector<OverviewRow>& rows);

}  // namespace kelvor
