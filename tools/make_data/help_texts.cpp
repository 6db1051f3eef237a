#include "make_data/help_texts.h"

#include <system_error>

#include "make_data/text_table.h"

namespace kelvor {

namespace {

constexpr std::size_t kLargestText = 64UL * 1024UL;

HelpText ReadHelpText(const Path& file) {
    const std::string name = file.filename().string();
    const std::string content = NativeFileSystem().Read(file, kLargestText);
    const std::size_t line = content.find("\n\n");
    if (line == std::string::npos || line == 0 || content.find('\n') != line)
        throw TextTableError(name + ": the first line is no heading with an empty line below");
    HelpText help{content.substr(0, line), content.substr(line + 2)};
    while (help.text.ends_with('\n')) help.text.pop_back();
    if (help.text.empty()) throw TextTableError(name + ": there is no text below the heading");
    return help;
}

}  // namespace

std::map<std::string, HelpText> ReadHelpTexts(const Path& folder) {
    std::map<std::string, HelpText> texts;
    std::error_code missing;
    for (const auto& entry : std::filesystem::directory_iterator(folder, missing)) {
        const Path& file = entry.path();
        if (file.extension() == ".txt") texts.emplace(file.stem().string(), ReadHelpText(file));
    }
    if (missing) throw FileError(folder.string() + ": " + missing.message());
    return texts;
}

}  // namespace kelvor
