#include "support/bracketed_language.h"

#include <algorithm>
#include <cctype>
#include <sstream>
#include <vector>

#include "platform/text.h"
#include "support/script_files.h"
#include "support/temporary_folder.h"

namespace kelvor::test {

namespace {

constexpr const char* kOpening = "\u2039";
constexpr const char* kClosing = "\u203A";
constexpr std::string_view kEnglish = "msgid \"";

std::vector<std::string> AlikeTexts() {
    std::vector<std::string> texts;
    std::istringstream lines(ReadFile(ScriptFolder() / "alike_texts.txt"));
    for (std::string line; std::getline(lines, line);) {
        if (!line.starts_with('#')) texts.push_back(line);
    }
    return texts;
}

}  // namespace

std::string BracketedLanguage() {
    std::istringstream lines(ReadFile(KELVOR_SOURCE_FOLDER "/data/translations/kelvor.pot"));
    std::string po;
    for (std::string line, english; std::getline(lines, line);) {
        if (line.starts_with(kEnglish)) {
            english = line.substr(kEnglish.size(), line.size() - kEnglish.size() - 1);
        }
        if (line == "msgstr \"\"" && !english.empty()) {
            line = std::string("msgstr \"") + kOpening + english + kClosing + "\"";
        }
        po += line + "\n";
    }
    return po;
}

bool HasBracket(const std::string& text) { return text.find(kOpening) != std::string::npos; }

bool IsAlikeInEveryLanguage(const std::string& text) {
    static const std::vector<std::string> alike = AlikeTexts();
    return std::any_of(alike.begin(), alike.end(),
                       [&](const std::string& pattern) { return Like(text, pattern); });
}

bool HasWord(const std::string& text) {
    const auto isLetter = [](char c) { return std::isalpha(static_cast<unsigned char>(c)) != 0; };
    return std::adjacent_find(text.begin(), text.end(),
                              [&](char a, char b) { return isLetter(a) && isLetter(b); }) != text.end();
}

}  // namespace kelvor::test
