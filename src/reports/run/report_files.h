#pragma once

#include <string>

#include "platform/host.h"

namespace kelvor {

/// The folders and files that a run of reports needs below the program folder, and what is said of missing
/// ones.
class ReportFiles {
  public:
    ReportFiles(Host& host, Path home) : host_(host), home_(std::move(home)) {}

    static constexpr const char* kLayouts = "Reports";
    static constexpr const char* kDatabases = "DataBase";

    /// Makes a folder that is missing; that it cannot be made shows later.
    void Provide(const std::string& folder);

    /// True if a folder is there; else its message is shown.
    bool Demand(const std::string& folder);

    /// True if the catalogue database is there; else its message is shown.
    bool DemandCatalogue();

    [[nodiscard]] Path Catalogue() const;
    [[nodiscard]] Path Layout(const std::string& report) const;

  private:
    Host& host_;
    Path home_;
};

}  // namespace kelvor
