#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace kelvor {

/// A library that the program uses, as it calls itself.
struct Library {
    std::string name;
    std::string version;
};

/// The version of the program, such as "1.2.3".
std::string_view ProgramVersion();

/// The commit of the sources that the program was built from, in short; "unknown" if nothing told it.
std::string_view SourceCommit();

/// The libraries of the core: of SQLite the one that is loaded, of the others those it was built with.
std::vector<Library> CoreLibraries();

/// Names with versions in one line, "SQLite 3.40.1, fmt 9.1.0".
std::string NamesOf(const std::vector<Library>& libraries);

/// What `--version` prints: program and version, commit, libraries, a line each, those of a front end last.
std::string VersionText(std::string_view program, const std::vector<Library>& ofFrontEnd = {});

}  // namespace kelvor
