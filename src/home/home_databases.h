#pragma once

#include "platform/file_system.h"

namespace kelvor {

/// Has SQLite take back what a program that was killed left half written, which it keeps in a journal beside
/// the database. Throws DatabaseError if the file is no sound database.
void SettleDatabase(const Path& file);

/// Copies the list of recent files of one catalogue to another. Throws DatabaseError.
void CarryRecentFiles(const Path& from, const Path& to);

/// Brings a user's lists up to date with those that ship: he gets lists that are new, and what "Restore" puts
/// back is as shipped. His own entries stay as they are, and so do the entries that he took off a list.
/// Throws DatabaseError.
void RenewLists(const Path& shipped, const Path& lists);

}  // namespace kelvor
