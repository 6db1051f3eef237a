#include "desktop/version_option.h"

#include <QtGlobal>
#include <algorithm>
#include <cstdio>
#include <string_view>

namespace kelvor {

std::vector<Library> ToolkitLibraries() { return {{"Qt", qVersion()}}; }

bool TellVersion(int argc, char** argv) {
    const auto asks = [](std::string_view word) { return word == "--version" || word == "-v"; };
    if (std::none_of(argv + 1, argv + argc, asks)) return false;
    std::printf("%s\n", VersionText("kelvor", ToolkitLibraries()).c_str());
    return true;
}

}  // namespace kelvor
