#pragma once

#include "platform/file_system.h"

namespace kelvor {

/// Makes, of the text tables below `data`, the catalogue `DataBase/Kelvor.mdb`, the list database
/// `DataBase/custom.tpl` and the project template `kvrwork.tpl` below `home`, byte for byte the same
/// each time. The template has a row for every cell of every variable of the catalogue. Throws
/// TextTableError, FileError or DatabaseError; what() tells the table and the fault.
void MakeDatabases(const Path& data, const Path& home);

/// Writes the list of what ships, `shipped.lst`, by which users' homes are made and renewed, to a finished
/// home. Throws FileError.
void WriteShippedList(const Path& home);

/// The three of them, for tests that break one.
void MakeCatalogue(const Path& data, const Path& file);
void MakeLists(const Path& data, const Path& file);
void MakeTemplate(const Path& data, const Path& file);

}  // namespace kelvor
