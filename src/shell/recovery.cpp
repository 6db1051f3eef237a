#include "shell/recovery.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "platform/database_error.h"
#include "platform/replace_file.h"
#include "platform/translation.h"
#include "shell/overview.h"

namespace kelvor {

namespace {

/// Once more if it failed: what goes wrong in a while, like a full disk, may not go wrong at once again.
template <typename Action>
void TryTwice(const Action& action) {
    try {
        action();
    } catch (const FileError&) {
        action();
    }
}

std::string ResultText(const OverviewResult& result) {
    return result.unit.empty() ? result.text : result.text + " " + result.unit;
}

std::string LineText(const OverviewLine& line) {
    std::string results;
    for (const OverviewResult& result : line.results) {
        if (result.text.empty()) continue;
        results += (results.empty() ? ": " : ", ") + ResultText(result);
    }
    return line.title + results;
}

}  // namespace

std::string ContentsOf(ProcessState& state) {
    std::string contents;
    for (const OverviewLine& line : MakeOverview(state)) {
        contents += (contents.empty() ? "" : "; ") + LineText(line);
    }
    std::replace(contents.begin(), contents.end(), '\n', ' ');
    return contents.empty() ? Translated("no design yet") : contents;
}

std::string Describe(const KeptProject& kept) {
    const std::string name =
        kept.formerPath.empty() ? Translated("unnamed project") : Path(kept.formerPath).filename().string();
    return LocalMinute(kept.date) + ", " + name + (kept.contents.empty() ? "" : ": " + kept.contents);
}

// --- The note ------------------------------------------------------------------------------------------

std::string Recovery::FormerPath() const {
    return state_.sProjectFile.empty() ? state_.proposedPath : state_.sProjectFile;
}

void Recovery::NoteUnsavedWork() {
    const bool unsaved = state_.bProjectChanged && state_.dbWork.IsOpen();
    if (unsaved == state_.unsavedNoted) return;
    if (!unsaved) return DropNote();
    if (!state_.home.KeepsDroppedWork() || state_.workLock == nullptr) return;
    const Path note = state_.home.UnsavedNoteFile();
    try {
        state_.host.files.Remove(note);  // rather than write through a link in its place
        state_.host.files.Write(note, state_.host.clock.Timestamp() + "\n" + FormerPath());
        state_.unsavedNoted = true;
    } catch (const std::exception&) {  // NOLINT(bugprone-empty-catch): tried again
    }
}

void Recovery::RenewNote() {
    if (!state_.unsavedNoted || !state_.dbWork.IsOpen()) return;
    state_.unsavedNoted = false;
    NoteUnsavedWork();
    try {
        if (state_.unsavedNoted) state_.host.files.Flush(state_.home.UnsavedNoteFile());
    } catch (const std::exception&) {  // NOLINT(bugprone-empty-catch): tried again
    }
}

void Recovery::DropNote() {
    if (!state_.unsavedNoted) return;
    try {
        state_.host.files.Remove(state_.home.UnsavedNoteFile());
        state_.unsavedNoted = false;
    } catch (const FileError&) {  // NOLINT(bugprone-empty-catch): tried again
    }
    DropSnapshot();
}

void Recovery::TakeSnapshot() {
    if (!state_.unsavedNoted || !state_.dbWork.IsOpen()) return;
    const int writes = state_.dbWork.writes();
    if (writes == state_.snapshotWrites) return;
    const std::string content = state_.dbWork.WorkCopyContent();
    if (content.empty()) return;  // rather the copy of before than none
    try {
        ReplaceFile(state_.host.files, state_.home.SnapshotFile(), content);
        state_.snapshotWrites = writes;
    } catch (const FileError&) {  // NOLINT(bugprone-empty-catch): tried again
    }
}

/// A copy that stays does no harm: it is looked at only where a note stands beside a work copy that is torn.
void Recovery::DropSnapshot() {
    if (std::exchange(state_.snapshotWrites, -1) == -1) return;
    try {
        state_.host.files.Remove(state_.home.SnapshotFile());
    } catch (const FileError&) {  // NOLINT(bugprone-empty-catch): see above
    }
}

KeptProject Recovery::ReadNote() const {
    std::string note;
    try {
        note = state_.host.files.Read(state_.home.UnsavedNoteFile(), kLongestNote);
    } catch (const FileError&) {  // NOLINT(bugprone-empty-catch): the work copy is what counts
    }
    const std::size_t line = std::min(note.find('\n'), note.size());
    KeptProject about{{}, note.substr(0, line), {}, {}};
    if (line < note.size()) about.formerPath = note.substr(line + 1);
    if (LocalMinute(about.date) == about.date) about.date = state_.host.clock.Timestamp();  // it is none
    return about;
}

// --- Keeping -------------------------------------------------------------------------------------------

std::optional<KeptProject> Recovery::UnsavedWork() {
    if (!state_.home.KeepsDroppedWork() || !state_.dbWork.IsOpen() || !state_.bProjectChanged)
        return std::nullopt;
    return KeptProject{state_.recoveredFrom, state_.host.clock.Timestamp(), FormerPath(), ContentsOf(state_)};
}

/// True of work that was recovered and left as it was.
bool Recovery::IsAlreadyKept(const KeptProject& about) const {
    if (about.file.empty()) return false;
    try {
        const FileSystem& files = state_.host.files;
        return files.Read(about.file, kLargestProject) ==
               files.Read(state_.home.WorkCopyFile(), kLargestProject);
    } catch (const FileError&) {
        return false;
    }
}

void Recovery::Keep(const KeptProject& about) {
    if (IsAlreadyKept(about)) return;
    TryTwice([&] {
        KeptWork(state_.host.files, state_.home.KeptFolder()).Take(state_.home.WorkCopyFile(), about);
    });
    ListKeptWork();
}

std::string Recovery::ContentsOfCrashedWork() {
    try {
        state_.dbWork.Open(state_.home.WorkCopyFile(), state_.projectBounds, true);
        std::string contents = ContentsOf(state_);
        state_.dbWork.Close();
        return contents;
    } catch (const DatabaseError& failure) {
        state_.dbWork.Abandon();
        return Filled(Translated("cannot be read: %1"), {failure.what()});
    }
}

bool Recovery::IsWhole(const Path& workCopy) {
    try {
        state_.dbWork.Open(workCopy, state_.projectBounds, true);
        state_.dbWork.Close();
        return true;
    } catch (const DatabaseError&) {
        state_.dbWork.Abandon();
        return false;
    }
}

/// Puts the copy of some seconds ago in the place of a work copy that a power cut has torn.
void Recovery::MendCrashedWork() {
    const FileSystem& files = state_.host.files;
    const Path snapshot = state_.home.SnapshotFile();
    const Path torn = state_.home.WorkCopyFile();
    if (files.Kind(snapshot) != FileKind::Regular) return;
    state_.snapshotWrites = 0;  // from now on it is this program's to take away
    if (IsWhole(torn) || !IsWhole(snapshot)) return;
    state_.host.files.Remove(torn.string() + "-journal");  // it belongs to the torn one
    ReplaceFile(state_.host.files, torn, files.Read(snapshot, kLargestProject));
}

bool Recovery::KeepCrashedWork() {
    if (!state_.home.KeepsDroppedWork()) return false;
    if (state_.host.files.Kind(state_.home.UnsavedNoteFile()) == FileKind::Missing) return false;
    const bool left = state_.host.files.Kind(state_.home.WorkCopyFile()) != FileKind::Missing;
    if (left) {
        MendCrashedWork();
        KeptProject about = ReadNote();
        about.contents = ContentsOfCrashedWork();
        Keep(about);
    }
    state_.unsavedNoted = true;  // from now on the note is this program's to take away
    return left;
}

void Recovery::ListKeptWork() {
    if (!state_.home.KeepsDroppedWork()) return;
    try {
        TryTwice([&] { state_.keptWork = KeptWork(state_.host.files, state_.home.KeptFolder()).List(); });
    } catch (const FileError&) {  // NOLINT(bugprone-empty-catch): the list stays as it was
    }
}

}  // namespace kelvor
