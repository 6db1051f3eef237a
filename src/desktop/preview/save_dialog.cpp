#include "desktop/preview/save_dialog.h"

#include <QFileDialog>
#include <QFileInfo>

#include "desktop/qt_text.h"
#include "desktop/translated_text.h"

namespace kelvor {

namespace {

struct FileKindName {
    ReportFormat format;
    const char* suffix;
    const char* filter;
};

constexpr FileKindName kKinds[] = {
    {ReportFormat::Pdf, "pdf", ToTranslate("PDF (*.pdf)")},
    {ReportFormat::Rtf, "rtf", ToTranslate("Rich Text, for word processors (*.rtf)")},
    {ReportFormat::Html, "html", ToTranslate("Web page (*.html)")},
    {ReportFormat::Text, "txt", ToTranslate("Plain text (*.txt)")}};

const FileKindName* KindOfSuffix(const QString& suffix) {
    for (const FileKindName& kind : kKinds) {
        if (suffix.compare(QLatin1String(kind.suffix), Qt::CaseInsensitive) == 0) return &kind;
    }
    return nullptr;
}

const FileKindName& KindOfFilter(const QString& filter) {
    for (const FileKindName& kind : kKinds) {
        if (filter == TranslatedText(kind.filter)) return kind;
    }
    return kKinds[0];
}

}  // namespace

std::optional<SaveChoice> AskWhereToSave(QWidget* parent, const QString& name) {
    QFileDialog dialog(parent, TranslatedText("Save Report As"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    QStringList filters;
    for (const FileKindName& kind : kKinds) filters << TranslatedText(kind.filter);
    dialog.setNameFilters(filters);
    dialog.setDefaultSuffix(QLatin1String(kKinds[0].suffix));
    QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, [&dialog](const QString& filter) {
        dialog.setDefaultSuffix(QLatin1String(KindOfFilter(filter).suffix));
    });
    dialog.selectFile(name);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
    const QString file = dialog.selectedFiles().constFirst();
    if (const FileKindName* kind = KindOfSuffix(QFileInfo(file).suffix())) {
        return SaveChoice{FromQt(file), kind->format};
    }
    const FileKindName& kind = KindOfFilter(dialog.selectedNameFilter());
    return SaveChoice{FromQt(file + QLatin1Char('.') + QLatin1String(kind.suffix)), kind.format};
}

}  // namespace kelvor
