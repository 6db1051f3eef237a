#pragma once

#include <optional>
#include <string>

#include "shell/process_state.h"

namespace kelvor {

/// Sees to it that work which is dropped or lost with the process can be had back. While the work copy holds
/// changes that no project file has, a note beside it says so; a program that finds one at its start takes
/// the work copy for that of a program that crashed. Does nothing for a program that works outside its home.
class Recovery {
  public:
    explicit Recovery(ProcessState& state) : state_(state) {}

    /// Leaves the note, or takes it away, as the work copy now stands. Due at the end of every event, before
    /// its writes are final. A note that cannot be written is tried again at the next event.
    void NoteUnsavedWork();

    /// Writes the note anew with the time of day, and brings it to the disk.
    void RenewNote();

    /// Copies the open work copy as a whole beside it, if it was written to since: a power cut may leave a
    /// part of what was written last.
    void TakeSnapshot();

    /// Takes the note and the copy away: the work copy is about to be replaced, or the program ends in good
    /// order.
    void DropNote();

    /// What would be lost with the open project now; nothing if a file has all of it.
    [[nodiscard]] std::optional<KeptProject> UnsavedWork();

    /// Keeps a closed work copy aside. Throws FileError if that cannot be done, and it stays where it is.
    void Keep(const KeptProject& about);

    /// Keeps what a crashed program has left. The work copy must be this program's own by now, and closed.
    /// True if there was something. Throws FileError as Keep does.
    bool KeepCrashedWork();

    /// Reads anew what is kept.
    void ListKeptWork();

  private:
    [[nodiscard]] bool IsAlreadyKept(const KeptProject& about) const;
    [[nodiscard]] std::string FormerPath() const;
    [[nodiscard]] KeptProject ReadNote() const;
    [[nodiscard]] std::string ContentsOfCrashedWork();
    bool IsWhole(const Path& workCopy);
    void MendCrashedWork();
    void DropSnapshot();

    ProcessState& state_;
};

/// What a project holds, in one line, as "Flexible Design Inputs: 5.41"; "no design yet" if there is none.
std::string ContentsOf(ProcessState& state);

/// A kept project as menus and messages name it: the time of this place, the file it came from, what it
/// holds.
std::string Describe(const KeptProject& kept);

}  // namespace kelvor
