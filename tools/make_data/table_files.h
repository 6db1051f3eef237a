#pragma once

#include <optional>
#include <string>
#include <vector>

#include "make_data/text_table.h"
#include "platform/file_system.h"

namespace kelvor {

/// The columns that a text table may have. One that a file leaves out is Null in all its rows.
using ColumnNames = std::vector<std::string>;

/// Reads a text table from its file and arranges it in the given columns. Throws FileError or TextTableError,
/// the latter also for a column that is none of them.
TextTable ReadTable(const Path& file, const ColumnNames& columns);

/// Reads every text table of a folder, in the order of their names, as one.
TextTable ReadTables(const Path& folder, const ColumnNames& columns);

/// Rewrites every text table below a folder with its columns aligned. Throws FileError or TextTableError.
void AlignTables(const Path& folder);

/// What a cell holds that must hold a number.
double Number(const TextRow& row, const std::string& cell);

/// What a cell holds that must hold a whole number, of a size that the program reads.
int Whole(const TextRow& row, const std::string& cell);

/// A cell that must hold a whole number, or be Null for `otherwise`.
int WholeCell(const TextRow& row, const std::optional<std::string>& cell, int otherwise);

}  // namespace kelvor
