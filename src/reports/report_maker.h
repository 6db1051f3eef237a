#pragma once

#include "platform/file_system.h"
#include "reports/document/page_setup.h"
#include "reports/engine.h"
#include "reports/page_maker.h"

namespace kelvor {

/// The engine of Kelvor's own: layouts filled from staging tables, written as HTML, RTF, plain text or PDF.
/// The module that breaks and paints pages is loaded with the first PDF.
class ReportMaker : public ReportEngine {
  public:
    explicit ReportMaker(FileSystem& files) : files_(files) {}

    Report Fill(const ReportRequest& request) override;
    void Write(const Report& report, ReportFormat format, const Path& file) override;

    [[nodiscard]] PageSetup Pages() const override { return setup_; }
    void SetPages(const PageSetup& setup) override { setup_ = setup; }

    /// What a filled report looks like as a file of a format. Throws FileError if no pages can be made.
    [[nodiscard]] std::string Content(const Report& report, ReportFormat format) const;

    /// A filled report in pages. Throws FileError if what makes them cannot be loaded.
    [[nodiscard]] std::unique_ptr<PagedReport> Break(const Report& report) const;

  private:
    FileSystem& files_;
    PageSetup setup_;
};

}  // namespace kelvor
