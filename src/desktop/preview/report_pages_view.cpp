#include "desktop/preview/report_pages_view.h"

#include <QMessageBox>
#include <QVBoxLayout>
#include <utility>

#include "desktop/preview/page_setup_dialog.h"
#include "desktop/preview/save_dialog.h"
#include "desktop/qt_text.h"
#include "desktop/translated_text.h"
#include "reports/writers/text_writer.h"

namespace kelvor {

namespace {

constexpr int kLeastLetters = 90;
constexpr int kLeastLines = 12;

}  // namespace

ReportPagesView::ReportPagesView(ReportPagesHooks hooks, QWidget* parent)
    : QWidget(parent),
      hooks_(std::move(hooks)),
      browser_(new PageBrowser(this)),
      tools_(new PageTools(*browser_, this)),
      reason_(new QLabel(this)) {
    reason_->setObjectName(QStringLiteral("NoPages"));
    reason_->setTextFormat(Qt::PlainText);
    reason_->setWordWrap(true);
    reason_->setAlignment(Qt::AlignCenter);
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->addWidget(tools_);
    rows->addWidget(browser_, 1);
    rows->addWidget(reason_, 1);
    browser_->setMinimumSize(kLeastLetters * fontMetrics().averageCharWidth(),
                             kLeastLines * fontMetrics().lineSpacing());
    tools_->onSetup = [this] { AskSetup(); };
    tools_->onSave = [this] { Save(); };
    tools_->onLeave = [this] { hooks_.giveFocusBack(); };
    ShowReason({});
}

void ReportPagesView::Show(const std::shared_ptr<const Document>& document, const std::string& text) {
    if (document == nullptr) {
        document_ = nullptr;
        ShowReason(ToQt(text));
        return;
    }
    browser_->setAccessibleName(ToQt(text));
    if (std::exchange(document_, document) != document) BreakIntoPages();
}

QString ReportPagesView::shownText() const {
    return reason_->isHidden() ? browser_->accessibleName() : reason_->text();
}

void ReportPagesView::BreakIntoPages() {
    try {
        browser_->SetPages(LoadPageMaker().Break(*document_, hooks_.setup()));
    } catch (const FileError& failure) {
        ShowReason(QString::fromUtf8(failure.what()));
        return;
    }
    // Who hears the screen gets the words of the pages.
    browser_->setAccessibleDescription(ToQt(WriteText(*document_)));
    tools_->Renew();
    tools_->show();
    browser_->show();
    reason_->hide();
}

void ReportPagesView::ShowReason(const QString& reason) {
    reason_->setText(reason);
    tools_->hide();
    browser_->hide();
    reason_->show();
}

void ReportPagesView::AskSetup() {
    const auto setup = AskPageSetup(this, hooks_.setup());
    if (!setup) return;
    hooks_.changeSetup(*setup);
    if (document_ != nullptr) BreakIntoPages();
}

void ReportPagesView::Save() {
    if (document_ == nullptr) return;
    const auto choice = AskWhereToSave(this, ToQt(document_->title));
    if (!choice) return;
    try {
        hooks_.write(choice->format, choice->file);
    } catch (const FileError& failure) {
        QMessageBox::critical(this, TranslatedText("Save Report As"),
                              TranslatedText("%1 could not be written:\n%2")
                                  .arg(ToQt(choice->file.string()), QString::fromUtf8(failure.what())));
    }
}

}  // namespace kelvor
