#pragma once

#include "catalogue/schema.h"
#include "make_data/text_table.h"
#include "platform/file_system.h"

namespace kelvor {

// The tables of the catalogue, read from the text tables below the folder `data`, each with all the columns
// of the database. What follows from other cells stands in no text table and is worked out here. All throw
// FileError or TextTableError.

/// The variables, from `catalogue/variables`, with their help, from `catalogue/help`. A unit that is left out
/// is "No Units", a bound that is left out 1.
TextTable ReadVariables(const Path& data);

/// The fields, from `catalogue/fields`. `Seq` is the number of a term, for which Solve For then serves; a row
/// without it comes after the screen's row above, from 19 up. A row with a key in `Equation` is an output.
TextTable ReadFields(const Path& data);

/// A table of the catalogue by its definition. A screen that names another one in `FieldsOf` has the same
/// fields.
TextTable ReadCatalogueTable(const Path& data, const TableDefinition& definition);

}  // namespace kelvor
