#pragma once

#include <string>
#include <vector>

#include "reports/engine.h"

namespace kelvor::test {

/// The staging tables with all their columns and rows; every cell has a number or a text that no other has.
StagedTables SampleTables();

/// What a report has to show: a table, and the columns that it does not show.
struct ShownTable {
    std::string name;
    std::vector<std::string> without;
};

/// A report and the tables it is made from.
struct SampleReport {
    std::string name;
    std::vector<ShownTable> tables;
    bool hasCheck = false;  // whether the stored numbers satisfy the equation
};

/// All fifteen reports.
const std::vector<SampleReport>& SampleReports();

/// The cells of a report's tables as it has to show them.
std::vector<std::string> ShownCells(const StagedTables& tables, const SampleReport& report);

/// A slab: a rectangle of 200 by 90 points, and its label.
ReportDrawing SampleDrawing();

/// What a run asks for with the delivered layout of a report.
ReportRequest RequestFor(const std::string& name, StagedTables tables);

/// How often a text stands in another.
int CountOf(const std::string& text, const std::string& part);

/// A text without its blanks and line breaks.
std::string Squeezed(const std::string& text);

}  // namespace kelvor::test
