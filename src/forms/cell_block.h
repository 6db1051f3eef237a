#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace kelvor {

/// A rectangle of cells of a grid, both ends included. Rows count from 1, columns from 0.
struct CellRange {
    int firstRow = 1;
    int lastRow = 1;
    std::size_t firstColumn = 0;
    std::size_t lastColumn = 0;
};

/// A text that goes into a cell of a grid.
struct CellEntry {
    int row = 1;
    std::size_t column = 0;
    std::string text;
};

/// The cells of a block as spreadsheets hand it over: a line a row, cells divided by tabs; a cell that holds
/// a tab, a line end or a quote stands in double quotes, with quotes inside doubled. Rows may differ in
/// length. Blanks around a cell are dropped.
std::vector<std::vector<std::string>> SplitCells(std::string_view block);

/// The same the other way round. A number loses the commas that group it, so that any program reads it.
std::string JoinCells(const std::vector<std::vector<std::string>>& rows);

}  // namespace kelvor
