#include "platform/replace_file.h"

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <random>
#include <string>

#include "platform/system_reason.h"
#include "platform/translation.h"

namespace kelvor {

namespace {

// The name of a temporary file is a dot, the name of its target, a dot, digits by chance, and this.
constexpr std::string_view kEnding = ".new";
constexpr std::size_t kDigits = 16;
constexpr std::string_view kDigitLetters = "0123456789abcdef";

/// What the temporary files of a target begin with. Of a long name only the beginning is in it, as the
/// platform limits names.
std::string StartOfName(const Path& target) {
    constexpr std::size_t kLongestPart = 200;
    return "." + target.filename().string().substr(0, kLongestPart) + ".";
}

/// Digits that nobody can foresee, so that nothing can be put in the way.
std::string RandomDigits() {
    std::random_device random;
    std::string digits;
    while (digits.size() < kDigits) digits += kDigitLetters[random() % kDigitLetters.size()];
    return digits;
}

Path TemporaryBeside(const Path& target) {
    return target.parent_path() / (StartOfName(target) + RandomDigits() + std::string(kEnding));
}

bool IsTemporaryOf(const std::string& start, std::string_view name) {
    if (name.size() != start.size() + kDigits + kEnding.size()) return false;
    if (!name.starts_with(start) || !name.ends_with(kEnding)) return false;
    return name.substr(start.size(), kDigits).find_first_not_of(kDigitLetters) == std::string_view::npos;
}

/// Removes a half-made file without hiding the failure that made it one.
void RemoveQuietly(FileSystem& files, const Path& path) {
    try {
        files.Remove(path);
    } catch (const FileError&) {  // NOLINT(bugprone-empty-catch): nothing was made, or it cannot be removed
    }
}

}  // namespace

void RemoveLeftovers(FileSystem& files, const Path& target) {
    try {
        const Path resolved = files.Resolve(target);
        const std::string start = StartOfName(resolved);
        for (const std::string& name : files.Names(resolved.parent_path())) {
            if (IsTemporaryOf(start, name)) files.RemoveUnheld(resolved.parent_path() / name);
        }
    } catch (const FileError&) {  // NOLINT(bugprone-empty-catch): it is in nobody's way
    }
}

void ReplaceFile(FileSystem& files, const Path& target, std::string_view content) {
    const Path resolved = files.Resolve(target);
    const FileKind kind = files.Kind(resolved);
    if (kind == FileKind::Directory) throw FileError(SystemReason(EISDIR));
    if (kind == FileKind::Other) throw FileError(Translated("Not a regular file"));
    // Renaming would replace a write-protected file all the same.
    if (kind == FileKind::Regular && !files.IsWritable(resolved)) throw FileError(SystemReason(EACCES));
    RemoveLeftovers(files, resolved);
    const Path temporary = TemporaryBeside(resolved);
    try {
        const bool replaces = kind == FileKind::Regular;
        // Held until it has its place: another process takes it for no leftover.
        const auto hold =
            files.WriteNew(temporary, content, replaces ? FileAccess::Private : FileAccess::Usual);
        if (replaces) files.CopyPermissions(resolved, temporary);
        files.Flush(temporary);
        files.Rename(temporary, resolved);
    } catch (...) {
        RemoveQuietly(files, temporary);
        throw;
    }
    // From here on the new file is in place, whole. Only its survival of a power cut is still open, and a
    // folder that cannot be flushed is no reason to report a failure.
    try {
        files.Flush(resolved.parent_path());
    } catch (const FileError&) {  // NOLINT(bugprone-empty-catch)
    }
}

}  // namespace kelvor
