#include "reports/report_maker.h"

#include <exception>
#include <utility>

#include "platform/replace_file.h"
#include "platform/translation.h"
#include "reports/document/document.h"
#include "reports/drawing_pictures.h"
#include "reports/layout/layout_reader.h"
#include "reports/writers/html_writer.h"
#include "reports/writers/rtf_writer.h"
#include "reports/writers/text_writer.h"

namespace kelvor {

namespace {

/// Layouts and their pictures are small; a larger file was not meant for one.
constexpr std::size_t kLargestFile = 4U << 20U;

/// The placeholder of a layout that shows the title under which the report goes.
constexpr const char* kTitleText = "Title";

Document FillFrom(FileSystem& files, const ReportRequest& request) {
    LayoutTexts texts = request.texts;
    texts.try_emplace(kTitleText, request.title);
    const LayoutData data{request.tables, texts,
                          [&](const std::string& name) {
                              return files.Read(request.layout.parent_path() / name, kLargestFile);
                          },
                          &request.drawings};
    const std::string layout = files.Read(request.layout, kLargestFile);
    return FillLayout(layout, request.layout.filename().string(), data);
}

}  // namespace

Report ReportMaker::Fill(const ReportRequest& request) {
    try {
        return {std::make_shared<const Document>(FillFrom(files_, request)), ""};
    } catch (const FileError& failure) {
        return {nullptr, Filled(Translated("The layout %1 cannot be read: %2."),
                                {request.layout.string(), failure.what()})};
    } catch (const std::exception& failure) {
        return {nullptr, failure.what()};
    }
}

std::string ReportMaker::Content(const Report& report, ReportFormat format) const {
    switch (format) {
        case ReportFormat::Html:
            return WriteHtml(*report.document);
        case ReportFormat::Rtf:
            return WriteRtf(WithPictures(*report.document), setup_);
        case ReportFormat::Text:
            return WriteText(*report.document);
        case ReportFormat::Pdf:
            return Break(report)->Pdf();
    }
    return {};
}

std::unique_ptr<PagedReport> ReportMaker::Break(const Report& report) const {
    return LoadPageMaker().Break(*report.document, setup_);
}

void ReportMaker::Write(const Report& report, ReportFormat format, const Path& file) {
    ReplaceFile(files_, file, Content(report, format));
}

}  // namespace kelvor
