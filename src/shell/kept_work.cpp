#include "shell/kept_work.h"

#include <algorithm>
#include <array>
#include <ctime>
#include <functional>
#include <iomanip>
#include <set>
#include <sstream>

#include "platform/number_text.h"

namespace kelvor {

namespace {

constexpr std::string_view kProjectEnding = ".kvr";
constexpr std::string_view kNoteEnding = ".txt";

/// Of the number of a name.
constexpr std::size_t kDigits = 3;

constexpr std::size_t kDateLetters = std::string_view("2001-02-03 04:05:06.789").size();

/// The note has the line first, since a path may have any character, that of a new line too.
std::string NoteOf(const KeptProject& about) { return about.contents + "\n" + about.formerPath; }

void ReadNote(const std::string& note, KeptProject& about) {
    const std::size_t line = std::min(note.find('\n'), note.size());
    about.contents = note.substr(0, line);
    if (line < note.size()) about.formerPath = note.substr(line + 1);
}

/// A name has the date without colons, which some file systems do not take, and a number, so that text order
/// is order in time even of those of one moment.
std::string StartOfName(std::string date) {
    std::replace(date.begin(), date.end(), ':', '.');
    std::replace(date.begin(), date.end(), '/', '.');
    return date + "-";
}

std::string DateOfName(const std::string& name) {
    std::string date = name.substr(0, kDateLetters);
    for (const std::size_t place : {13U, 16U}) {
        if (date.size() > place && date[place] == '.') date[place] = ':';
    }
    return date;
}

}  // namespace

/// A folder that is there but cannot be read is a failure: taken for empty, its work would be written over.
std::vector<std::string> KeptWork::Names() const {
    std::vector<std::string> names;
    if (files_.Kind(folder_) == FileKind::Missing) return names;  // nothing was ever kept
    for (const std::string& name : files_.Names(folder_)) {
        if (name.ends_with(kProjectEnding))
            names.push_back(name.substr(0, name.size() - kProjectEnding.size()));
    }
    std::sort(names.begin(), names.end(), std::greater<>());
    return names;
}

std::vector<KeptProject> KeptWork::List() const {
    std::vector<KeptProject> kept;
    for (const std::string& name : Names()) {
        if (kept.size() == kMost) break;
        KeptProject project{folder_ / (name + std::string(kProjectEnding)), DateOfName(name), {}, {}};
        try {
            ReadNote(files_.Read(folder_ / (name + std::string(kNoteEnding)), kLongestNote), project);
        } catch (const FileError&) {  // NOLINT(bugprone-empty-catch): the work itself is there
        }
        kept.push_back(std::move(project));
    }
    return kept;
}

/// A name behind those of the same moment.
std::string KeptWork::FreeName(const std::string& date) const {
    const std::string start = StartOfName(date);
    int number = 0;
    for (const std::string& name : Names()) {
        if (!name.starts_with(start)) continue;
        number = ParseSubscript(name.substr(start.size())).value_or(0) + 1;
        break;
    }
    std::string digits = std::to_string(number);
    digits.insert(0, digits.size() < kDigits ? kDigits - digits.size() : 0, '0');
    return start + digits;
}

void KeptWork::Take(const Path& workCopy, const KeptProject& about) {
    if (files_.Kind(folder_) == FileKind::Missing) files_.MakeDirectory(folder_);
    const std::string name = FreeName(about.date);
    try {
        files_.Write(folder_ / (name + std::string(kNoteEnding)), NoteOf(about));
    } catch (const FileError&) {  // NOLINT(bugprone-empty-catch): the work counts, not the note
    }
    // A moved file takes no room, so that a full disk is no reason to lose it.
    files_.Rename(workCopy, folder_ / (name + std::string(kProjectEnding)));
    DropOld();
}

void KeptWork::DropOld() {
    try {
        const std::vector<std::string> names = Names();
        const std::set<std::string> kept(
            names.begin(), names.begin() + static_cast<std::ptrdiff_t>(std::min(names.size(), kMost)));
        for (const std::string& name : files_.Names(folder_)) {
            if (!kept.contains(Path(name).stem().string())) files_.Remove(folder_ / name);
        }
    } catch (const FileError&) {  // NOLINT(bugprone-empty-catch): the next one tries again
    }
}

std::string LocalMinute(const std::string& date) {
    std::tm time{};
    std::istringstream stream(date);
    stream >> std::get_time(&time, "%Y-%m-%d %H:%M:%S");
    if (!stream) return date;
    const std::time_t moment = ::timegm(&time);
    if (::localtime_r(&moment, &time) == nullptr) return date;
    std::array<char, 32> text{};
    const std::size_t length = std::strftime(text.data(), text.size(), "%Y-%m-%d %H:%M", &time);
    return {text.data(), length};
}

}  // namespace kelvor
