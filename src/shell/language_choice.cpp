#include "shell/language_choice.h"

#include <algorithm>
#include <sstream>

#include "platform/translation.h"

namespace kelvor {

namespace {

constexpr std::string_view kEnding = ".po";
constexpr std::size_t kLargestCatalogue = 4UL * 1024UL * 1024UL;

Path FolderOf(const Home& home) { return home.SharedFolder() / "Languages"; }

/// True of "es" and "pt_BR". Anything else names no file.
bool IsCode(std::string_view code) {
    return !code.empty() && std::all_of(code.begin(), code.end(), [](char c) {
        return c == '_' || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
    });
}

bool IsEnglish(std::string_view code) {
    return code == "C" || code == "POSIX" || code == "en" || code.starts_with("en_");
}

/// Adds "es_MX" and "es" for "es_MX.UTF-8". False for English, after which no other language is wanted.
bool AddLocale(std::vector<std::string>& languages, const std::string& locale) {
    const std::string code = locale.substr(0, locale.find_first_of(".@"));
    if (IsEnglish(code)) return false;
    if (!IsCode(code)) return true;
    languages.push_back(code);
    if (const std::size_t country = code.find('_'); country != std::string::npos) {
        languages.push_back(code.substr(0, country));
    }
    return true;
}

}  // namespace

std::vector<std::string> LanguagesOf(const Environment& environment) {
    std::vector<std::string> languages;
    std::istringstream wanted(environment("LANGUAGE"));
    for (std::string locale; std::getline(wanted, locale, ':');) {
        if (!AddLocale(languages, locale)) return languages;
    }
    for (const char* variable : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        const std::string locale = environment(variable);
        if (locale.empty()) continue;
        AddLocale(languages, locale);
        break;
    }
    return languages;
}

std::vector<std::string> SpokenLanguages(const FileSystem& files, const Home& home) {
    std::vector<std::string> languages;
    try {
        for (const std::string& name : files.Names(FolderOf(home))) {
            if (name.ends_with(kEnding)) languages.push_back(name.substr(0, name.size() - kEnding.size()));
        }
    } catch (const FileError&) {  // NOLINT(bugprone-empty-catch): English needs no file
    }
    std::sort(languages.begin(), languages.end());
    return languages;
}

void SpeakFirstOf(const std::vector<std::string>& languages, const FileSystem& files, const Home& home) {
    Speak({});
    if (languages.empty()) return;
    const std::vector<std::string> spoken = SpokenLanguages(files, home);
    const auto best = std::find_first_of(languages.begin(), languages.end(), spoken.begin(), spoken.end());
    if (best == languages.end()) return;
    try {
        const Path catalogue = FolderOf(home) / (*best + std::string(kEnding));
        Speak(Translation::ReadPo(files.Read(catalogue, kLargestCatalogue)));
    } catch (
        const FileError&) {  // NOLINT(bugprone-empty-catch): a catalogue that cannot be read leaves English
    }
}

}  // namespace kelvor
