#include "reports/run/report_files.h"

namespace kelvor {

namespace {

/// Reports need the catalogue under this name, whatever the configuration says.
constexpr const char* kCatalogue = "Kelvor.mdb";

}  // namespace

void ReportFiles::Provide(const std::string& folder) {
    if (host_.files.Kind(home_ / folder) != FileKind::Missing) return;
    try {
        host_.files.MakeDirectory(home_ / folder);
    } catch (const FileError&) {  // NOLINT(bugprone-empty-catch): a report without its layout says so
    }
}

bool ReportFiles::Demand(const std::string& folder) {
    const Path path = home_ / folder;
    if (host_.files.Kind(path) == FileKind::Directory) return true;
    host_.dialogs.ShowMessage(
        {.text = folder + " directory is missing (" + path.string() + ").\nPlease reinstall program."});
    return false;
}

bool ReportFiles::DemandCatalogue() {
    const FileKind kind = host_.files.Kind(Catalogue());
    if (kind != FileKind::Missing && kind != FileKind::Directory) return true;
    host_.dialogs.ShowMessage({.text = std::string(kCatalogue) + " file does not exist in the " +
                                       (home_ / kDatabases).string() +
                                       " directory.\nPlease reinstall the program.",
                               .title = "File is missing"});
    return false;
}

Path ReportFiles::Catalogue() const { return home_ / kDatabases / kCatalogue; }

Path ReportFiles::Layout(const std::string& report) const {
    return home_ / kLayouts / ("Rep_" + report + ".vsr");
}

}  // namespace kelvor
