#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>

#include "platform/file_system.h"
#include "reports/document/page_setup.h"
#include "reports/document/report_drawing.h"
#include "reports/staged_tables.h"

namespace kelvor {

class Document;

/// What a report can be written as.
enum class ReportFormat { Pdf, Rtf, Html, Text };

/// What a report is made from.
struct ReportRequest {
    Path layout;          // Rep_<name>.vsr
    std::string name;     // DeF, OvUP_Part, LCA1 ...
    std::string title;    // "Flexible Design Report"
    StagedTables tables;  // its staging tables, and all others

    /// What a layout may show beside the staging tables, by name. Always there, perhaps empty:
    /// `Check`: whether the stored numbers satisfy the equation of the report's screen, in a sentence;
    /// `Governs`: what decides its result, in a sentence;
    /// `Project`: the name of the project file, without its folder; `DateTime`: when the run was made.
    std::map<std::string, std::string, std::less<>> texts;

    /// The drawings that a layout may show. Always there, perhaps empty: `Section`, that of the pavement.
    ReportDrawings drawings;
};

/// A report filled with its values, or the reason why it could not be.
struct Report {
    std::shared_ptr<const Document> document;  // null if it failed
    std::string error;  // then: what is wrong with its layout, with file and line, in a sentence

    [[nodiscard]] bool IsFilled() const { return document != nullptr; }
};

/// Makes reports from layouts and staged values, and writes them.
class ReportEngine {
  public:
    ReportEngine() = default;
    ReportEngine(const ReportEngine&) = delete;
    ReportEngine& operator=(const ReportEngine&) = delete;
    virtual ~ReportEngine() = default;

    /// Fills a layout. A layout that is missing or wrong gives a report with an error; nothing is thrown.
    virtual Report Fill(const ReportRequest& request) = 0;

    /// Writes a filled report to a file, which is replaced whole. Throws FileError and leaves what stood
    /// there.
    virtual void Write(const Report& report, ReportFormat format, const Path& file) = 0;

    /// The sheet that pages are set on, in files and on paper.
    [[nodiscard]] virtual PageSetup Pages() const { return {}; }
    virtual void SetPages(const PageSetup& /*setup*/) {}
};

}  // namespace kelvor
