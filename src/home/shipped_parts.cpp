#include "home/shipped_parts.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <sstream>

namespace kelvor {

namespace {

constexpr std::size_t kMarkLength = 16;

const char* const kSingleParts[] = {"kvor.ini", "kvrwork.tpl", "DataBase/Kelvor.mdb", "DataBase/custom.tpl"};

bool StaysInFolder(const Path& name) {
    return name.is_relative() && std::find(name.begin(), name.end(), "..") == name.end();
}

}  // namespace

ShippedParts::ShippedParts(std::string text) : text_(std::move(text)) {
    std::istringstream lines(text_);
    for (std::string line; std::getline(lines, line);) {
        if (line.size() <= kMarkLength + 1 || line[kMarkLength] != ' ') continue;
        ShippedPart part{line.substr(kMarkLength + 1), line.substr(0, kMarkLength)};
        if (StaysInFolder(part.name)) parts_.push_back(std::move(part));
    }
}

std::string ShippedParts::MarkOf(std::string_view name) const {
    for (const ShippedPart& part : parts_) {
        if (part.name == name) return part.mark;
    }
    return {};
}

std::string ContentMark(std::string_view content) {
    constexpr std::uint64_t kStart = 0xCBF29CE484222325ULL;
    constexpr std::uint64_t kPrime = 0x100000001B3ULL;
    constexpr unsigned kHalfByte = 4;
    std::uint64_t hash = kStart;
    for (const char c : content) hash = (hash ^ static_cast<unsigned char>(c)) * kPrime;
    std::string mark(kMarkLength, '0');
    for (auto digit = mark.rbegin(); digit != mark.rend(); ++digit, hash >>= kHalfByte) {
        *digit = "0123456789abcdef"[hash & 0xFU];
    }
    return mark;
}

std::string ListShippedParts(const FileSystem& files, const Path& folder) {
    std::vector<std::string> names(std::begin(kSingleParts), std::end(kSingleParts));
    for (const std::string& layout : files.Names(folder / "Reports")) names.push_back("Reports/" + layout);
    std::sort(names.begin(), names.end());
    std::string text;
    for (const std::string& name : names) {
        text += ContentMark(files.Read(folder / name, kLargestPart)) + " " + name + "\n";
    }
    return text;
}

}  // namespace kelvor
