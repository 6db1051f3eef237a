#pragma once

#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "platform/replace_file.h"
#include "reports/engine.h"

namespace kelvor::test {

/// An engine that notes what it is asked for. A layout that is missing cannot be filled; what it writes is
/// the name of the report.
class ReportEngineDouble : public ReportEngine {
  public:
    Report Fill(const ReportRequest& request) override {
        requests.push_back(request);
        if (files_.Kind(request.layout) == FileKind::Missing)
            return {nullptr, request.layout.filename().string() + " is missing"};
        // The program passes documents on and never looks at them, so any place will do.
        const auto place = std::make_shared<std::string>(request.name);
        names_[place.get()] = place;
        return {{place, reinterpret_cast<const Document*>(place.get())}, ""};
    }

    void Write(const Report& report, ReportFormat format, const Path& file) override {
        const auto* name = reinterpret_cast<const std::string*>(report.document.get());
        static const std::map<ReportFormat, std::string> kinds = {{ReportFormat::Pdf, "pdf"},
                                                                  {ReportFormat::Rtf, "rtf"},
                                                                  {ReportFormat::Html, "html"},
                                                                  {ReportFormat::Text, "text"}};
        ReplaceFile(files_, file, *name + " as " + kinds.at(format));
    }

    std::vector<ReportRequest> requests;

  private:
    NativeFileSystem files_;
    std::map<const void*, std::shared_ptr<std::string>> names_;
};

}  // namespace kelvor::test
