#pragma once

#include "make_data/text_table.h"
#include "platform/file_system.h"

namespace kelvor {

/// The entries of the drop-down lists, with all the columns of the list database. `lists/List.tsv` has a row
/// for each list, `lists/entries` what it offers; a list may have the entries of another one (`EntriesOf`).
/// An entry is offered in the unit systems of its letters (`E`, `M`), which each have a row for it; in both
/// if there is no letter. `Sort` is its place among those of its unit system. Throws FileError or
/// TextTableError.
TextTable ReadLists(const Path& data);

}  // namespace kelvor
