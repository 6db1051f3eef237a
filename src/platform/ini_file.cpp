#include "platform/ini_file.h"

#include <algorithm>
#include <cstddef>
#include <vector>

#include "platform/replace_file.h"
#include "platform/text.h"

namespace kelvor {

namespace {

constexpr std::size_t kLargestFile = 1024UL * 1024UL;
constexpr std::size_t kLongestValue = 255;

std::vector<std::string> SplitLines(std::string_view content) {
    std::vector<std::string> lines;
    while (!content.empty()) {
        const std::size_t end = std::min(content.find('\n'), content.size());
        std::string_view line = content.substr(0, end);
        if (line.ends_with('\r')) line.remove_suffix(1);
        lines.emplace_back(line);
        content.remove_prefix(std::min(end + 1, content.size()));
    }
    return lines;
}

bool IsSectionLine(std::string_view line) { return TrimBlanks(line).starts_with('['); }

bool IsSection(std::string_view line, std::string_view section) {
    const std::string_view text = TrimBlanks(line);
    if (!text.starts_with('[') || !text.ends_with(']')) return false;
    return EqualNoCase(TrimBlanks(text.substr(1, text.size() - 2)), section);
}

bool IsKey(std::string_view line, std::string_view key) {
    const std::size_t equals = line.find('=');
    return equals != std::string_view::npos && !TrimBlanks(line).starts_with(';') &&
           EqualNoCase(TrimBlanks(line.substr(0, equals)), key);
}

/// Where a section's lines begin and end, and where its line for a key stands (or the end).
struct Place {
    std::size_t begin = 0;
    std::size_t end = 0;
    std::size_t key = 0;
    bool found = false;
};

Place FindPlace(const std::vector<std::string>& lines, std::string_view section, std::string_view key) {
    Place place;
    const auto head = std::find_if(lines.begin(), lines.end(),
                                   [&](const std::string& line) { return IsSection(line, section); });
    if (head == lines.end()) {
        place.begin = place.end = place.key = lines.size();
        return place;
    }
    const auto end = std::find_if(head + 1, lines.end(), IsSectionLine);
    const auto at = std::find_if(head + 1, end, [&](const std::string& line) { return IsKey(line, key); });
    place.begin = static_cast<std::size_t>(head - lines.begin());
    place.end = static_cast<std::size_t>(end - lines.begin());
    place.key = static_cast<std::size_t>(at - lines.begin());
    place.found = at != end;
    return place;
}

std::string_view WithoutQuotes(std::string_view value) {
    if (value.size() < 2 || value.front() != value.back()) return value;
    if (value.front() != '"' && value.front() != '\'') return value;
    return value.substr(1, value.size() - 2);
}

}  // namespace

std::string ReadIni(const FileSystem& files, std::string_view section, std::string_view key,
                    const Path& file) {
    try {
        const std::vector<std::string> lines = SplitLines(files.Read(file, kLargestFile));
        const Place place = FindPlace(lines, section, key);
        if (!place.found) return {};
        const std::string_view line = lines[place.key];
        return std::string(
            WithoutQuotes(TrimBlanks(line.substr(line.find('=') + 1))).substr(0, kLongestValue));
    } catch (const FileError&) {
        return {};
    }
}

bool WriteIni(FileSystem& files, std::string_view section, std::string_view key, std::string_view value,
              const Path& file) {
    try {
        std::string content;
        if (files.Kind(file) != FileKind::Missing) content = files.Read(file, kLargestFile);
        const char* lineEnd = content.find("\r\n") == std::string::npos ? "\n" : "\r\n";
        std::vector<std::string> lines = SplitLines(content);
        const Place place = FindPlace(lines, section, key);
        const std::string entry = std::string(key) + "=" + std::string(value);
        if (place.found) {
            lines[place.key] = entry;
        } else {
            if (place.begin == lines.size()) lines.push_back("[" + std::string(section) + "]");
            const std::size_t end = std::max(place.end, place.begin + 1);
            lines.insert(lines.begin() + static_cast<std::ptrdiff_t>(end), entry);
        }
        content.clear();
        for (const std::string& line : lines) content += line + lineEnd;
        ReplaceFile(files, file, content);
        return true;
    } catch (const FileError&) {
        return false;
    }
}

}  // namespace kelvor
