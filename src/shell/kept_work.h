#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "platform/file_system.h"

namespace kelvor {

/// The longest note that is read of work that was not saved: a path and a line.
inline constexpr std::size_t kLongestNote = 64UL * 1024UL;

/// Work that was dropped with changes that no project file has.
struct KeptProject {
    Path file;               // where it lies now; of work that is still to be kept, where it once lay
    std::string date;        // UTC, as Clock::Timestamp gives it
    std::string formerPath;  // of the project file that it came from; empty: it never had one
    std::string contents;    // one line of what it holds
};

/// The folder in which dropped work is kept aside: a project file each, and beside it a note of what it was.
/// It holds the newest ones; older ones go when another one comes.
class KeptWork {
  public:
    static constexpr std::size_t kMost = 20;

    KeptWork(FileSystem& files, Path folder) : files_(files), folder_(std::move(folder)) {}

    /// What is kept, newest first. Empty if the folder is missing or cannot be read.
    [[nodiscard]] std::vector<KeptProject> List() const;

    /// Moves a closed work copy into the folder. Throws FileError, and the work copy then stays where it is.
    /// A note that cannot be written costs the note alone.
    void Take(const Path& workCopy, const KeptProject& about);

  private:
    [[nodiscard]] std::vector<std::string> Names() const;
    [[nodiscard]] std::string FreeName(const std::string& date) const;
    void DropOld();

    FileSystem& files_;
    Path folder_;
};

/// "2001-02-03 04:05" in the time of this place, of a date as Clock::Timestamp gives it. Another text is left
/// as it is.
std::string LocalMinute(const std::string& date);

}  // namespace kelvor
