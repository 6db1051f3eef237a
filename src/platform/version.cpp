#include "platform/version.h"

#include <sqlite3.h>

#include "commit.h"
#include "version_facts.h"

namespace kelvor {

std::string_view ProgramVersion() { return KELVOR_VERSION; }

std::string_view SourceCommit() { return KELVOR_COMMIT; }

std::vector<Library> CoreLibraries() {
    return {{"SQLite", sqlite3_libversion()},
            {"SQLiteCpp", KELVOR_SQLITECPP_VERSION},
            {"fmt", KELVOR_FMT_VERSION},
            {"CLI11", KELVOR_CLI11_VERSION},
            {"JSON for Modern C++", KELVOR_JSON_VERSION},
            {"pugixml", KELVOR_PUGIXML_VERSION},
            {"Pango", KELVOR_PANGO_VERSION},
            {"Cairo", KELVOR_CAIRO_VERSION}};
}

std::string NamesOf(const std::vector<Library>& libraries) {
    std::string names;
    for (const Library& library : libraries) {
        if (!names.empty()) names += ", ";
        names += library.name + " " + library.version;
    }
    return names;
}

std::string VersionText(std::string_view program, const std::vector<Library>& ofFrontEnd) {
    std::vector<Library> libraries = CoreLibraries();
    libraries.insert(libraries.end(), ofFrontEnd.begin(), ofFrontEnd.end());
    return std::string(program) + " " + std::string(ProgramVersion()) + "\ncommit " +
           std::string(SourceCommit()) + "\nwith " + NamesOf(libraries);
}

}  // namespace kelvor
