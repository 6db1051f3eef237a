#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace kelvor {

/// The cells of a block as spreadsheets hand it over: a line a row, cells divided by tabs; a cell that holds
/// a tab, a line end or a quote stands in double quotes, with quotes inside doubled. Rows may differ in
/// length. Blanks around a cell are dropped.
std::vector<std::vector<std::string>> SplitCells(std::string_view block);

/// The same the other way round. A number loses the commas that group it, so that any program reads it.
std::string JoinCells(const std::vector<std::vector<std::string>>& rows);

}  // namespace kelvor
