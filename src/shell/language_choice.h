#pragma once

#include <string>
#include <vector>

#include "platform/user_folders.h"
#include "shell/home.h"

namespace kelvor {

/// The codes of the languages that an environment asks for, the best first, "es_MX" before "es": those of
/// LANGUAGE, and then that of LC_ALL, LC_MESSAGES or LANG, whichever is set first. English ends the list.
std::vector<std::string> LanguagesOf(const Environment& environment);

/// The codes of the languages, other than English, that a program speaks.
std::vector<std::string> SpokenLanguages(const FileSystem& files, const Home& home);

/// Makes the process speak the first of these languages that the program has; English if it has none. Only
/// texts change: numbers keep their point, whatever the language.
void SpeakFirstOf(const std::vector<std::string>& languages, const FileSystem& files, const Home& home);

}  // namespace kelvor
